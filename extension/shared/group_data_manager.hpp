#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "uikit/platform.hpp"

namespace mirune {

/// Reads the files that the planner exports.
class GroupDataManager {
 public:
  /// The bytes of NAME.json in the shared container. Nothing where there is no container (debug line "groupURLnilllll")
  /// or where the file cannot be read (the container's URL and "groupURLnilllllreaddd").
  static std::optional<std::string> read(const uikit::Platform& platform, std::string_view name);
};

}  // namespace mirune
