#include "calendar_mood/calendar_month_view.hpp"

#include "calendar_mood/root_view.hpp"

namespace mirune {

swiftui::View CalendarMonthView::body(const swiftui::EnvironmentValues& environment) const {
  const foundation::Calendar& calendar = environment.platform->calendar;
  return RootView{.calendar = calendar,
                  .date_month = entry.month_date,
                  .today = entry.today_date,
                  .df = foundation::DateFormatter(calendar, "LLLL")};
}

}  // namespace mirune
