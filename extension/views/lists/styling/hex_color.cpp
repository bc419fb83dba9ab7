#include "styling/hex_color.hpp"

#include <cstdint>
#include <optional>

#include "foundation/strings.hpp"

namespace mirune {
namespace {

uikit::RGBA ofBytes(std::uint64_t red, std::uint64_t green, std::uint64_t blue, std::uint64_t alpha) {
  const auto part = [](std::uint64_t byte) { return static_cast<double>(byte) / 255; };
  return {.red = part(red), .green = part(green), .blue = part(blue), .alpha = part(alpha)};
}

/// Nothing for a text whose length is that of no form.
std::optional<uikit::RGBA> parse(std::string_view text) {
  const std::string_view digits = foundation::trimmedToAlphanumerics(text);
  const std::uint64_t value = foundation::leadingHexadecimal(digits);
  switch (foundation::characterCount(digits)) {
    case 3:
      return ofBytes((value >> 8) * 17, (value >> 4 & 0xF) * 17, (value & 0xF) * 17, 255);
    case 6:
      return ofBytes(value >> 16, value >> 8 & 0xFF, value & 0xFF, 255);
    case 8:
      return ofBytes(value >> 16 & 0xFF, value >> 8 & 0xFF, value & 0xFF, value >> 24);
    default:
      return std::nullopt;
  }
}

}  // namespace

uikit::RGBA platformColorOfHex(std::string_view text) {
  return parse(text).value_or(ofBytes(0, 0, 0, 255));
}

uikit::RGBA sRGBColorOfHex(std::string_view text) {
  return parse(text).value_or(ofBytes(1, 1, 0, 1));
}

}  // namespace mirune
