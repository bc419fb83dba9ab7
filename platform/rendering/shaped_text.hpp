#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace rendering {

class Typeface;

/// A letter's picture in a font.
struct ShapedGlyph {
  std::uint32_t index = 0;
  double x = 0;  ///< from the left edge of its cluster, em
  double y = 0;  ///< from the baseline downwards, em
};

/// Letters that cannot be parted, and how they are drawn.
struct GlyphCluster {
  std::size_t start = 0;  ///< in the text, bytes
  std::size_t end = 0;
  double advance = 0;    ///< em
  bool isSpaced = true;  ///< whether spacing follows
  std::size_t firstGlyph = 0;
  std::size_t glyphCount = 0;
};

/// Neighbouring clusters of one typeface, from left to right.
struct GlyphRun {
  const Typeface* typeface = nullptr;  ///< null where a machine has no font at all
  bool runsToTheLeft = false;
  std::vector<GlyphCluster> clusters = {};
  std::vector<ShapedGlyph> glyphs = {};
};

/// One line of text in glyphs, at no size yet.
struct ShapedText {
  const Typeface* own = nullptr;    ///< what it is set in where no other lends letters
  std::vector<GlyphRun> runs = {};  ///< from left to right

  /// The width in points. The spacing stands behind each cluster, the last one too.
  double width(double size, double spacing) const;
};

}  // namespace rendering
