#include "calendar_mood/week_view.hpp"

#include "calendar_mood/month_dates.hpp"
#include "foundation/date_formatter.hpp"
#include "foundation/fatal_error.hpp"

namespace mirune {

using namespace swiftui;

namespace {

View weekdayLabel(const std::string& symbol, const std::string& name) {
  return text("30")
      .font(system(9))
      .foregroundColor(uikit::clear)
      .padding({.leading = 0.1, .trailing = 0.1})
      .overlay(text(symbol).font(system(8)).minimumScaleFactor(0.1))
      .accessibilityLabel(name);
}

View tightRow(const std::vector<View>& cells) {
  std::vector<View> children;
  for (const View& cell : cells) {
    if (!children.empty()) children.push_back(spacer(0).frame({.maxWidth = 8}));
    children.push_back(cell.fixedSize());
  }
  return hstack({.spacing = 0}, std::move(children));
}

}  // namespace

View WeekView::body(const EnvironmentValues& environment) const {
  const foundation::Calendar& calendar = environment.platform->calendar;
  const auto symbols = calendar.veryShortWeekdaySymbols();
  const foundation::DateFormatter weekday(calendar, "cccc");
  std::vector<View> cells;
  for (const foundation::Date day : daysOfWeek(calendar, week)) {
    if (showDays) {
      const auto index = calendar.component(foundation::CalendarComponent::weekday, day) - 1;
      if (index < 0 || index >= std::ssize(symbols)) foundation::fatalError("a day of no weekday");
      cells.push_back(weekdayLabel(symbols[static_cast<std::size_t>(index)], weekday.string(day)));
    } else {
      // Days of other months keep their place, so that the columns stay aligned.
      cells.push_back(content(day).opacity(areInSameMonth(calendar, week, day) ? 1 : 0));
    }
  }
  return spacing == WeekSpacing::tight ? tightRow(cells) : hstack({}, std::move(cells));
}

}  // namespace mirune
