#pragma once

#include "swiftui/font.hpp"

namespace rendering {

/// The system font's line box at that size. It belongs to the platform's font, not to the one that stands in for it:
/// 1.19336 em high, the baseline at 0.95215 em, in every weight.
swiftui::FontMetrics systemFontMetrics(double size);

/// What is added to the width of each character, in em: the platform's tracking for the size of its system font, less
/// what the font that stands in for it is wider.
double systemTracking(double size, swiftui::FontWeight weight);

}  // namespace rendering
