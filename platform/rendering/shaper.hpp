#pragma once

#include <map>
#include <string>

#include "rendering/font_library.hpp"
#include "rendering/glyph_style.hpp"
#include "rendering/shaped_text.hpp"

namespace rendering {

/// Chooses the glyphs of lines. What was shaped lately is kept: a text is measured several times and then drawn.
class Shaper {
 public:
  /// The glyphs of one line, at any size; the reference holds until the next call.
  const ShapedText& shaped(const std::string& line, const GlyphStyle& style);

  /// The width of a line in points.
  double width(const std::string& line, const GlyphStyle& style);

  /// A custom font's own measures at that size.
  swiftui::FontMetrics customFontMetrics(const swiftui::Font& font);

 private:
  /// What the choice of glyphs depends on: not the size.
  struct Key {
    std::string line;
    std::string font;
    swiftui::FontWeight weight;
    swiftui::FontDesign design;
    bool italic;
    bool isSpaced;
    swiftui::LayoutDirection direction;
    std::string language;

    friend auto operator<=>(const Key&, const Key&) = default;
  };

  ShapedText shape(const std::string& line, const GlyphStyle& style);

  FontLibrary fonts_;
  std::map<Key, ShapedText> kept_;
};

}  // namespace rendering
