#pragma once

#include "swiftui/view.hpp"

namespace mirune {

/// The outline of a check box: round corners of that radius for `style` 0, sharp ones for the others.
swiftui::View checkBoxOutline(int style, double cornerRadius);

/// A check box of 16 points with its tick, and the label behind it: what both toggle styles draw. The tick keeps its
/// place while it is not seen.
swiftui::View checkBoxRow(const swiftui::ToggleStyleConfiguration& configuration, int style);

}  // namespace mirune
