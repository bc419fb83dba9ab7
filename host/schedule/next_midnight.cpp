#include "schedule/next_midnight.hpp"

namespace host {

foundation::Date nextMidnight(const foundation::Calendar& calendar, foundation::Date moment) {
  const auto tomorrow = calendar.dateByAdding(foundation::CalendarComponent::day, 1, moment);
  const auto midnight = tomorrow ? calendar.startOfDay(*tomorrow) : moment;
  // At the end of all dates there is no tomorrow, but a host that waits must have a moment to wait for.
  return midnight > moment ? midnight : moment + std::chrono::days(1);
}

}  // namespace host
