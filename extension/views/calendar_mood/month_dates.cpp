#include "calendar_mood/month_dates.hpp"

namespace mirune {

using foundation::Calendar;
using foundation::CalendarPeriod;
using foundation::Date;
using foundation::DateInterval;

std::vector<Date> datesInside(const Calendar& calendar, const DateInterval& interval,
                              const foundation::MatchingComponents& matching) {
  std::vector<Date> dates{interval.start};
  calendar.enumerateDates(interval.start, matching, [&](Date date) {
    if (date >= interval.end) return false;
    dates.push_back(date);
    return true;
  });
  return dates;
}

std::vector<Date> weekAnchors(const Calendar& calendar, Date month) {
  const auto interval = calendar.dateInterval(CalendarPeriod::month, month);
  if (!interval) return {};
  return datesInside(calendar, *interval, {.weekday = calendar.firstWeekday()});
}

std::vector<Date> daysOfWeek(const Calendar& calendar, Date week) {
  const auto interval = calendar.dateInterval(CalendarPeriod::weekOfYear, week);
  if (!interval) return {};
  return datesInside(calendar, *interval, {});
}

bool areInSameMonth(const Calendar& calendar, Date a, Date b) {
  const auto month = calendar.dateInterval(CalendarPeriod::month, a);
  return month && month->contains(b);
}

}  // namespace mirune
