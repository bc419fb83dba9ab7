#include "lists/header_badge.hpp"

#include <array>
#include <span>

#include "calendar_mood/spoken_day.hpp"
#include "foundation/fatal_error.hpp"
#include "styling/fonts.hpp"

namespace mirune {

using namespace swiftui;

namespace {

// The pictures in the order in which they follow each other from day to day; "Asset 42" comes twice.
constexpr std::array<const char*, 104> lightBadges{
    "Asset 51aa", "Asset 59aa", "Asset 43aa", "Asset 16aa", "Asset 42",   "Asset 18aa", "Asset 6aa",  "Asset 48",
    "Asset 27",   "Asset 12aa", "Asset 60aa", "Asset 28",   "Asset 69aa", "Asset 45",   "Asset 40",   "Asset 73",
    "Asset 40aa", "Asset 32aa", "Asset 21aa", "Asset 55aa", "Asset 25",   "Asset 22aa", "Asset 53aa", "Asset 24aa",
    "Asset 19",   "Asset 42aa", "Asset 53",   "Asset 36aa", "Asset 17aa", "Asset 23",   "Asset 41aa", "Asset 35aa",
    "Asset 8aa",  "Asset 31aa", "Asset 20aa", "Asset 17",   "Asset 54aa", "Asset 72",   "Asset 37",   "Asset 36",
    "Asset 29aa", "Asset 61",   "Asset 38",   "Asset 16",   "Asset 31",   "Asset 68aa", "Asset 52aa", "Asset 19aa",
    "Asset 44",   "Asset 26aa", "Asset 41",   "Asset 65aa", "Asset 58aa", "Asset 34aa", "Asset 44aa", "Asset 39aa",
    "Asset 67",   "Asset 13aa", "Asset 63aa", "Asset 23aa", "Asset 48aa", "Asset 30",   "Asset 77",   "Asset 50",
    "Asset 46",   "Asset 47",   "Asset 70aa", "Asset 15aa", "Asset 9",    "Asset 55",   "Asset 27aa", "Asset 24",
    "Asset 64",   "Asset 57aa", "Asset 33aa", "Asset 46aa", "Asset 14aa", "Asset 52",   "Asset 32",   "Asset 67aa",
    "Asset 9aa",  "Asset 42",   "Asset 60",   "Asset 10aa", "Asset 66aa", "Asset 65",   "Asset 61aa", "Asset 56aa",
    "Asset 43",   "Asset 71",   "Asset 47aa", "Asset 15",   "Asset 62aa", "Asset 66",   "Asset 64aa", "Asset 49aa",
    "Asset 30aa", "Asset 28aa", "Asset 56",   "Asset 39",   "Asset 26",   "Asset 70",   "Asset 18",   "Asset 45aa",
};

constexpr std::array<const char*, 21> darkBadges{
    "dark-wsp-33", "dark-wsp-9",  "dark-wsp-34", "dark-wsp-12", "dark-wsp-31", "dark-wsp-41", "dark-wsp-42",
    "dark-wsp-29", "dark-wsp-22", "dark-wsp-49", "dark-wsp-48", "dark-wsp-28", "dark-wsp-24", "dark-wsp-44",
    "dark-wsp-26", "dark-wsp-47", "dark-wsp-40", "dark-wsp-43", "dark-wsp-27", "dark-wsp-30", "dark-wsp-38",
};

}  // namespace

std::string badgeImageName(std::int64_t image, ColorScheme scheme) {
  const auto badges = scheme == ColorScheme::dark ? std::span<const char* const>(darkBadges) : lightBadges;
  if (image < 0) foundation::fatalError("the number of a badge is negative: " + std::to_string(image));
  return badges[static_cast<std::size_t>(image) % badges.size()];
}

View badgeSizer() {
  return text("13").font(custom(badgeFont, 15)).foregroundColor(uikit::clear);
}

View HeaderBadge::body(const EnvironmentValues& environment) const {
  const ColorScheme scheme = environment.colorScheme;
  const auto& calendar = environment.platform->calendar;
  const std::int64_t day = calendar.component(foundation::CalendarComponent::day, date);
  return badgeSizer()
      .padding({.leading = 4, .trailing = 4})
      .background(resizableImage(badgeImageName(image, scheme)))
      .overlay(text(std::to_string(day)).font(custom(badgeFont, 13.5)).opacity(scheme == ColorScheme::dark ? 0.9 : 0.6))
      .accessibilityLabel([calendar, day = date] { return spokenDay(calendar, day); });
}

}  // namespace mirune
