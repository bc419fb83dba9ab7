#pragma once

#include "swiftui/view.hpp"

namespace mirune {

/// Content that follows the planner's theme instead of the system's appearance.
struct ForcedTheme {
  swiftui::View content;

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
