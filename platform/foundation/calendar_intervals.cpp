#include "foundation/calendar.hpp"
#include "foundation/calendar_system.hpp"
#include "foundation/gregorian_days.hpp"
#include "foundation/wall_clock.hpp"

namespace foundation {
namespace {

/// Days since 1970: the first of a period and the first after it.
struct Days {
  std::int64_t first = 0;
  std::int64_t next = 0;
};

Days gregorianMonth(std::int64_t day) {
  const CivilDay civil = civilDay(day);
  const bool isDecember = civil.month == 12;
  return {.first = daysSince1970({.year = civil.year, .month = civil.month, .day = 1}),
          .next = daysSince1970(
              {.year = civil.year + (isDecember ? 1 : 0), .month = isDecember ? 1 : civil.month + 1, .day = 1})};
}

std::optional<Days> foreignMonth(CalendarIdentifier identifier, std::int64_t day) {
  const std::chrono::sys_seconds midnight{std::chrono::days(day)};
  const auto dayOfMonth = calendarField(identifier, CalendarField::dayOfMonth, midnight);
  const auto length = calendarField(identifier, CalendarField::lengthOfMonth, midnight);
  if (!dayOfMonth || !length) return std::nullopt;
  const std::int64_t first = day - *dayOfMonth + 1;
  return Days{.first = first, .next = first + *length};
}

Days week(int firstWeekday, std::int64_t day) {
  constexpr int length = 7;
  const std::int64_t first = day - (weekdayOf(day) - firstWeekday + length) % length;
  return {.first = first, .next = first + length};
}

}  // namespace

std::optional<DateInterval> Calendar::dateInterval(CalendarPeriod period, Date date) const {
  const std::int64_t day = localDay(date, timeZone_);
  std::optional<Days> days;
  if (period == CalendarPeriod::weekOfYear) {
    days = week(firstWeekday(), day);
  } else {
    days = hasGregorianDays(identifier_) ? gregorianMonth(day) : foreignMonth(identifier_, day);
  }
  if (!days) return std::nullopt;
  return DateInterval{.start = firstInstant(days->first, timeZone_), .end = firstInstant(days->next, timeZone_)};
}

void Calendar::enumerateDates(Date startingAfter, const MatchingComponents& matching,
                              const std::function<bool(Date)>& visit) const {
  Date last = startingAfter;
  for (std::int64_t day = localDay(startingAfter, timeZone_);; ++day) {
    if (matching.weekday && weekdayOf(day) != *matching.weekday) continue;
    const auto match = dateBySettingHour(matching.hour, matching.minute, matching.second, firstInstant(day, timeZone_));
    if (!match) return;
    if (*match <= last) continue;
    if (!visit(*match)) return;
    last = *match;
  }
}

}  // namespace foundation
