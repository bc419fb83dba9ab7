#pragma once

#include <string>

#include "swiftui/alignment.hpp"
#include "swiftui/font.hpp"

namespace rendering {

/// How a line is set.
struct GlyphStyle {
  swiftui::Font font = {};  ///< at the size that it is drawn with
  double spacing = 0;       ///< added to the width of every character that stands apart from the next one, points
  swiftui::LayoutDirection direction = swiftui::LayoutDirection::leftToRight;
  std::string language = "en";
};

}  // namespace rendering
