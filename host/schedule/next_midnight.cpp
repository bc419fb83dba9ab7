#include "schedule/next_midnight.hpp"

namespace host {

foundation::Date nextMidnight(const foundation::Calendar& calendar, foundation::Date moment) {
  // Where a clock change leads from a minute past midnight back into the day before, tomorrow has begun already once.
  for (const int days : {1, 2}) {
    const auto day = calendar.dateByAdding(foundation::CalendarComponent::day, days, moment);
    const auto midnight = day ? calendar.startOfDay(*day) : foundation::Date::max();
    if (midnight > moment) return midnight;
  }
  return foundation::Date::max();
}

}  // namespace host
