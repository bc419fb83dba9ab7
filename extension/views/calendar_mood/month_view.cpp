#include "calendar_mood/month_view.hpp"

#include "calendar_mood/month_dates.hpp"
#include "calendar_mood/week_view.hpp"
#include "foundation/fatal_error.hpp"

namespace mirune {

using namespace swiftui;

namespace {

/// A gap between rows that gives way; at most what the system leaves between texts of this size.
View tightGap() {
  return spacer(0).frame({.maxHeight = 3.5});
}

}  // namespace

View MonthView::body(const EnvironmentValues& environment) const {
  const auto anchors = weekAnchors(environment.platform->calendar, month);
  if (anchors.empty()) foundation::fatalError("the calendar does not know the month");
  const auto labels = [&](WeekSpacing spacing) {
    return View(WeekView{.week = anchors.front(), .content = content, .showDays = true, .spacing = spacing})
        .padding({.bottom = 0.05});
  };
  std::vector<View> rows{labels(WeekSpacing::standard)};
  std::vector<View> tightRows{labels(WeekSpacing::tight)};
  for (const foundation::Date anchor : anchors) {
    rows.emplace_back(WeekView{.week = anchor, .content = content});
    tightRows.push_back(tightGap());
    tightRows.emplace_back(WeekView{.week = anchor, .content = content, .spacing = WeekSpacing::tight});
  }
  return viewThatFits({vstack({}, std::move(rows)), vstack({.spacing = 0}, std::move(tightRows))});
}

}  // namespace mirune
