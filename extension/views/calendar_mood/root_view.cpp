#include "calendar_mood/root_view.hpp"

#include "calendar_mood/month_view.hpp"
#include "calendar_mood/spoken_day.hpp"
#include "calendar_mood/today_marker.hpp"
#include "foundation/strings.hpp"

namespace mirune {

using namespace swiftui;

namespace {

/// A day's number, in a cell that is as wide as two digits whatever the number.
View dayCell(const RootView& root, const foundation::Words& words, foundation::Date day) {
  const bool isToday = day == root.today;
  const auto label = [calendar = root.calendar, words, day, isToday] {
    const std::string said = spokenDay(calendar, day);
    return isToday ? spokenToday(words, said) : said;
  };
  const auto number = root.calendar.component(foundation::CalendarComponent::day, day);
  return text("30")
      .font(system(9))
      .foregroundColor(uikit::clear)
      .padding({.leading = 0.1, .bottom = 0.05, .trailing = 0.1})
      .background(when(isToday, TodayMarker{}))
      .overlay(text(std::to_string(number)).font(system(9)).minimumScaleFactor(0.1))
      .accessibilityLabel(label);
}

}  // namespace

View RootView::body(const EnvironmentValues& environment) const {
  const auto content = [root = *this, platform = environment.platform](foundation::Date day) {
    return dayCell(root, platform->words, day);
  };
  const std::string month = df.string(date_month);
  return vstack({.spacing = 0},
                {
                    text(foundation::uppercased(month))
                        .font(system(11, FontWeight::semibold))
                        .kerning(1.5)
                        .padding(10)
                        .accessibilityLabel(month),
                    View(MonthView{.month = date_month, .showHeader = true, .content = content}).padding(1),
                    spacer(0),
                })
      .padding(10);
}

}  // namespace mirune
