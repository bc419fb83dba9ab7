#pragma once

#include "swiftui/view.hpp"

namespace mirune {

/// The look of a row's check box on the home screen. `style` 0 has round corners, the others have sharp ones.
struct ChecklistToggleStyle {
  int style = 0;

  swiftui::View makeBody(const swiftui::ToggleStyleConfiguration& configuration) const;
};

/// The same on the lock screen.
struct LockscreenChecklistToggleStyle {
  int style = 0;

  swiftui::View makeBody(const swiftui::ToggleStyleConfiguration& configuration) const;
};

}  // namespace mirune
