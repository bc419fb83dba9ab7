#pragma once

#include <cstdint>
#include <string>

#include "swiftui/view.hpp"

namespace mirune {

/// A list's title with the badge of its day.
struct HeaderRow {
  std::string name = {};
  std::int64_t image = 0;
  foundation::Date date = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

/// The title alone, on a line as tall as that with a badge.
struct BareHeaderRow {
  std::string name = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
