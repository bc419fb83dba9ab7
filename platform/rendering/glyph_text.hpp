#pragma once

#include <pango/pangocairo.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "rendering/fontconfig.hpp"
#include "rendering/gobject.hpp"
#include "swiftui/alignment.hpp"
#include "swiftui/font.hpp"

namespace rendering {

/// Stands in for the platform's system font: the closest free one in width, weight by weight.
inline constexpr std::string_view systemFamily = "Inter";

/// A font as the shaper is asked for it.
struct GlyphStyle {
  swiftui::Font font = {};  ///< at the size that it is drawn with
  double spacing = 0;       ///< added to the width of every character that stands apart from the next one, points
  swiftui::LayoutDirection direction = swiftui::LayoutDirection::leftToRight;
  std::string language = "en";

  /// The spacing that a line ends with: that of its last character.
  double spacingBehind(std::string_view line) const;
};

struct FreePangoFontDescription {
  void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }
};
using FontDescription = std::unique_ptr<PangoFontDescription, FreePangoFontDescription>;

/// The one place that knows Pango's fonts: makes paragraphs in user units, unhinted, so that widths are the same at
/// every scale.
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
  FontDescription description(const swiftui::Font& font) const;
  const FontFace& customFace(const swiftui::Font& font) const;

  FontconfigHandle fontconfig_;
  GObjectHandle<PangoFontMap> fontMap_;
  GObjectHandle<PangoContext> context_;
  mutable std::map<std::string, FontFace> customFaces_;
};

}  // namespace rendering
