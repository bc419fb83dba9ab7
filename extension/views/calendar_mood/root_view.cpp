#include "calendar_mood/root_view.hpp"

#include "calendar_mood/month_view.hpp"
#include "calendar_mood/today_marker.hpp"
#include "foundation/strings.hpp"

namespace mirune {

using namespace swiftui;

namespace {

/// A day's number, in a cell that is as wide as two digits whatever the number.
View dayCell(const RootView& root, foundation::Date day) {
  const auto number = root.calendar.component(foundation::CalendarComponent::day, day);
  return text("30")
      .font(system(9))
      .foregroundColor(uikit::clear)
      .padding({.leading = 0.1, .bottom = 0.05, .trailing = 0.1})
      .background(when(day == root.today, TodayMarker{}))
      .overlay(text(std::to_string(number)).font(system(9)).minimumScaleFactor(0.1));
}

}  // namespace

View RootView::body(const EnvironmentValues&) const {
  const auto content = [root = *this](foundation::Date day) { return dayCell(root, day); };
  return vstack({.spacing = 0},
                {
                    text(foundation::uppercased(df.string(date_month)))
                        .font(system(11, FontWeight::semibold))
                        .kerning(1.5)
                        .padding(10),
                    View(MonthView{.month = date_month, .showHeader = true, .content = content}).padding(1),
                    spacer(0),
                })
      .padding(10);
}

}  // namespace mirune
