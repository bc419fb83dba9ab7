#include "timelines/days.hpp"

#include "foundation/fatal_error.hpp"

namespace mirune {

using foundation::CalendarComponent;

foundation::Date dayAfter(const foundation::Calendar& calendar, foundation::Date startOfToday, int days) {
  const auto day = calendar.dateByAdding(CalendarComponent::day, days, startOfToday);
  if (!day) foundation::fatalError("a day of the timeline cannot be formed");
  return *day;
}

foundation::Date monthStart(const foundation::Calendar& calendar, foundation::Date date) {
  const auto daysBefore = calendar.component(CalendarComponent::day, date) - 1;
  const auto first = calendar.dateByAdding(CalendarComponent::day, -daysBefore, date);
  if (!first) foundation::fatalError("the first day of the month cannot be formed");
  return calendar.startOfDay(*first);
}

}  // namespace mirune
