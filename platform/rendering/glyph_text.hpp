#pragma once

#include <pango/pangocairo.h>

#include <optional>
#include <string>
#include <string_view>

#include "rendering/font_set.hpp"
#include "rendering/gobject.hpp"
#include "swiftui/alignment.hpp"
#include "swiftui/font.hpp"

namespace rendering {

/// A font as the shaper is asked for it.
struct GlyphStyle {
  swiftui::Font font = {};  ///< at the size that it is drawn with
  double spacing = 0;       ///< added to the width of every character that stands apart from the next one, points
  swiftui::LayoutDirection direction = swiftui::LayoutDirection::leftToRight;
  std::string language = "en";

  /// The spacing that a line ends with: that of its last character.
  double spacingBehind(std::string_view line) const;
};

/// The one place that makes paragraphs.
class GlyphText {
 public:
  GlyphText();

  /// A paragraph of that text; without a width until it is given one. Korean words are kept whole as others are, unless
  /// told otherwise.
  GObjectHandle<PangoLayout> paragraph(const std::string& content, const GlyphStyle& style,
                                       bool keepsKoreanWords = true) const;

  /// A custom font's own measures at that size.
  swiftui::FontMetrics customFontMetrics(const swiftui::Font& font) const;

 private:
  /// Whether the system font has all of its letters: to look through all fonts of a machine takes longer than to draw a
  /// widget.
  bool isUsual(const std::string& content) const;
  FontSet& fontsFor(const std::string& content) const;

  mutable FontSet usual_;
  CharacterSet letters_;
  mutable std::optional<FontSet> all_;
};

}  // namespace rendering
