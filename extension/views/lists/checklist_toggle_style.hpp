#pragma once

#include "swiftui/view.hpp"

namespace mirune {

/// A check box with its label behind it. `style` 0 has round corners, the others have sharp ones.
struct ChecklistToggleStyle {
  int style = 0;

  swiftui::View makeBody(const swiftui::ToggleStyleConfiguration& configuration) const;
};

}  // namespace mirune
