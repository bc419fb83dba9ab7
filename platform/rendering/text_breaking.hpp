#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rendering/shaper.hpp"
#include "swiftui/leaf_measurer.hpp"

namespace rendering {

inline constexpr std::string_view ellipsis = "…";
/// Widths that differ by less are the same, in points.
inline constexpr double widthTolerance = 1e-3;

/// A text broken at a width, before anything is cut.
struct BrokenText {
  struct Line {
    std::size_t start = 0;  ///< in the text, bytes
    swiftui::TextLine shown = {};
  };
  std::vector<Line> lines = {};
  double width = 0;         ///< of the widest line
  bool breaksWord = false;  ///< a word was too wide for a line of its own
};

/// Breaks a text so that its lines are no wider than that, if they can be. The blank at which a line was broken takes
/// no room. Korean words are kept whole, as others are, where a line is wide enough for them.
BrokenText breakText(Shaper& shaper, const std::string& content, const GlyphStyle& style, std::optional<double> width);

/// A single line of the text, cut with an ellipsis where it is too wide. `continues` says that more would follow on
/// other lines, so that an ellipsis is due in any case. Where not even that has room, nothing is shown.
swiftui::TextLine truncatedLine(Shaper& shaper, const std::string& content, bool continues, const GlyphStyle& style,
                                std::optional<double> width);

}  // namespace rendering
