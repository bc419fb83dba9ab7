#pragma once

#include <string>

namespace swiftui {

enum class FontWeight { ultraLight, thin, light, regular, medium, semibold, bold, heavy, black };

enum class FontDesign { standard, rounded };

/// A typeface at a size.
struct Font {
  std::string name = {};  ///< a registered custom font; empty for the system font
  double size = 17;       ///< points; fixed, it does not follow the reader's text size
  FontWeight weight = FontWeight::regular;
  FontDesign design = FontDesign::standard;
  bool italic = false;

  friend bool operator==(const Font&, const Font&) = default;
};

/// The system font.
inline Font system(double size, FontWeight weight = FontWeight::regular, FontDesign design = FontDesign::standard) {
  return {.name = {}, .size = size, .weight = weight, .design = design, .italic = false};
}

/// A font that the extension has registered by that name.
inline Font custom(std::string name, double size) {
  return {.name = std::move(name),
          .size = size,
          .weight = FontWeight::regular,
          .design = FontDesign::standard,
          .italic = false};
}

/// "medium", "ultraLight".
std::string nameOf(FontWeight weight);
/// "default", "rounded".
std::string nameOf(FontDesign design);

/// A font's vertical measures at its size, in points.
struct FontMetrics {
  double ascent = 0;     ///< from the baseline up to the top of the line
  double descent = 0;    ///< from the baseline down to the bottom of the line
  double capHeight = 0;  ///< of a capital letter

  double lineHeight() const { return ascent + descent; }
  friend bool operator==(const FontMetrics&, const FontMetrics&) = default;
};

}  // namespace swiftui
