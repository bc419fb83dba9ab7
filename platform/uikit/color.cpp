#include "uikit/color.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace uikit {
namespace {

struct SystemColorRow {
  RGBA light;
  RGBA dark;
};

constexpr RGBA rgb(int red, int green, int blue) {
  return {.red = red / 255.0, .green = green / 255.0, .blue = blue / 255.0};
}

// The platform's palette, in the order of SystemColor.
constexpr std::array<SystemColorRow, 3> systemColors{{
    {.light = rgb(0x00, 0x00, 0x00), .dark = rgb(0xFF, 0xFF, 0xFF)},
    {.light = rgb(0x8E, 0x8E, 0x93), .dark = rgb(0x8E, 0x8E, 0x93)},
    {.light = rgb(0xFF, 0x2D, 0x55), .dark = rgb(0xFF, 0x37, 0x5F)},
}};

}  // namespace

std::string hexText(RGBA color) {
  std::string text = "#";
  const auto append = [&](double part) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned>(std::lround(std::clamp(part, 0.0, 1.0) * 255));
    text += digits[value / 16];
    text += digits[value % 16];
  };
  append(color.red);
  append(color.green);
  append(color.blue);
  if (color.alpha < 1) append(color.alpha);
  return text;
}

RGBA resolve(const Color& color, ColorScheme scheme) {
  if (const auto* own = std::get_if<RGBA>(&color)) return *own;
  const auto& row = systemColors.at(static_cast<std::size_t>(std::get<SystemColor>(color)));
  return scheme == ColorScheme::dark ? row.dark : row.light;
}

}  // namespace uikit
