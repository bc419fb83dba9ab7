#pragma once

#include <filesystem>

namespace mirune {

/// What the planner and its widgets share beside data.
class MiruneShareResources {
 public:
  /// Makes the custom fonts known by the names that views use, as the roster in the resources says. Once a process; the
  /// later calls cost nothing. A roster that is missing or damaged leaves the system font in their place.
  static void loadFonts(const std::filesystem::path& resources);
};

}  // namespace mirune
