#pragma once

#include "swiftui/view.hpp"

namespace mirune {

/// Ends the content of a home-screen widget: lays the paper behind it, in the planner's theme.
struct AddBackgroundModifier {
  swiftui::View content;

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

/// Ends the content of a lock-screen widget: nothing behind it.
struct ClearBackgroundModifier {
  swiftui::View content;

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
