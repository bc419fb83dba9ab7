#pragma once

#include <string>
#include <variant>

namespace uikit {

/// Whether things are drawn dark on light or light on dark.
enum class ColorScheme { light, dark };

/// A colour in sRGB, each part from 0 to 1, not multiplied by alpha.
struct RGBA {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;

  friend bool operator==(const RGBA&, const RGBA&) = default;
};

/// "#RRGGBB", or "#RRGGBBAA" where the colour is not opaque.
std::string hexText(RGBA color);

/// Colours that the system knows by name; what they are depends on the colour scheme.
enum class SystemColor {
  label,  ///< the colour of text: black in light, white in dark
  gray,
  pink,
};

/// A colour of its own, or one that follows the colour scheme.
using Color = std::variant<RGBA, SystemColor>;

/// Nothing is painted with it.
inline constexpr RGBA clear{.red = 0, .green = 0, .blue = 0, .alpha = 0};

RGBA resolve(const Color& color, ColorScheme scheme);

}  // namespace uikit
