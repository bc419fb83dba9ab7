#include "calendar_mood/title_font.hpp"

#include <algorithm>

#include "foundation/strings.hpp"
#include "styling/fonts.hpp"

namespace mirune {
namespace {

constexpr std::int64_t usualSize = 50;
// What a font can be drawn in, whatever a catalogue says.
constexpr double smallestSize = 1;
constexpr double largestSize = 1000;

}  // namespace

swiftui::Font moodTitleFont(const foundation::Words& words) {
  return moodTitleFont(words.localized(titleFontKey), words.localized(titleSizeKey));
}

swiftui::Font moodTitleFont(std::string name, std::string_view size) {
  if (name == titleFontKey) name = moodFont;
  const auto base = static_cast<double>(foundation::decimalInteger(size).value_or(usualSize));
  const double wanted = name == moodFont ? base + 5 : base - 8;
  return swiftui::custom(std::move(name), std::clamp(wanted, smallestSize, largestSize));
}

}  // namespace mirune
