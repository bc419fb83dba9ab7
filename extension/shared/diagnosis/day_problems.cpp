#include "shared/diagnosis/day_problems.hpp"

#include <algorithm>
#include <chrono>

#include "shared/shown_days.hpp"

namespace mirune {

DayKeys shownDayKeys(const uikit::Platform& platform) {
  const auto start = platform.calendar.startOfDay(platform.now);
  DayKeys keys;
  for (int i = 0; i < shownDays; ++i) {
    const auto day = platform.calendar.dateByAdding(foundation::CalendarComponent::day, i, start);
    if (day) keys.insert(foundation::dayKey(*day, platform.calendar.timeZone()));
  }
  return keys;
}

bool isDayKey(std::string_view key) {
  constexpr std::string_view form = "0000/00/00";
  const auto fits = [](char byte, char expected) {
    return expected == '0' ? byte >= '0' && byte <= '9' : byte == expected;
  };
  if (!std::ranges::equal(key, form, fits)) return false;
  const auto number = [&](std::size_t start, std::size_t length) {
    int value = 0;
    for (const char digit : key.substr(start, length)) value = value * 10 + (digit - '0');
    return value;
  };
  using namespace std::chrono;
  return (year(number(0, 4)) / number(5, 2) / number(8, 2)).ok();
}

}  // namespace mirune
