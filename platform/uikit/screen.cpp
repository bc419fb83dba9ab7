#include "uikit/screen.hpp"

#include <charconv>

namespace uikit {
namespace {

std::optional<int> side(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{} || end != text.data() + text.size() || value < 1 || value > 10000) return std::nullopt;
  return value;
}

}  // namespace

std::optional<Screen> Screen::parse(std::string_view text) {
  const auto cross = text.find('x');
  if (cross == std::string_view::npos) return std::nullopt;
  const auto width = side(text.substr(0, cross));
  const auto height = side(text.substr(cross + 1));
  if (!width || !height) return std::nullopt;
  return Screen{.width = *width, .height = *height};
}

}  // namespace uikit
