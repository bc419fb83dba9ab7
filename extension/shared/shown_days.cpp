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

}  // namespace mirune
