#pragma once

#include <vector>

#include "foundation/calendar.hpp"

namespace mirune {

// The dates of a month's grid.

/// The start of an interval, whether it matches or not, and the matching dates behind it up to the interval's end.
std::vector<foundation::Date> datesInside(const foundation::Calendar& calendar,
                                          const foundation::DateInterval& interval,
                                          const foundation::MatchingComponents& matching);

/// A date in each calendar week that the month touches, one for each row of the grid: the first of the month, then
/// every midnight on which a week begins. None where the calendar does not know the month.
std::vector<foundation::Date> weekAnchors(const foundation::Calendar& calendar, foundation::Date month);

/// The seven midnights of the calendar week in which a date lies, those of neighbouring months, too.
std::vector<foundation::Date> daysOfWeek(const foundation::Calendar& calendar, foundation::Date week);

/// Whether two dates lie in the same month.
bool areInSameMonth(const foundation::Calendar& calendar, foundation::Date a, foundation::Date b);

}  // namespace mirune
