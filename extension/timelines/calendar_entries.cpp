#include "timelines/calendar_entries.hpp"

#include "timelines/days.hpp"

namespace mirune {

CalendarEntry calendarEntry(const foundation::Calendar& calendar, foundation::Date date) {
  return {.date = date, .month_date = monthStart(calendar, date), .today_date = calendar.startOfDay(date)};
}

std::vector<CalendarEntry> calendarEntries(const uikit::Platform& platform) {
  constexpr int midnights = 4;
  const auto& calendar = platform.calendar;
  const auto start = calendar.startOfDay(platform.now);
  std::vector<CalendarEntry> entries{calendarEntry(calendar, platform.now)};
  for (int k = 1; k <= midnights; ++k) entries.push_back(calendarEntry(calendar, dayAfter(calendar, start, k)));
  return entries;
}

}  // namespace mirune
