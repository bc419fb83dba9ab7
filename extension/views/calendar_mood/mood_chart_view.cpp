#include "calendar_mood/mood_chart_view.hpp"

#include <algorithm>
#include <utility>

#include "calendar_mood/mood_unit_view.hpp"
#include "calendar_mood/planner_pages.hpp"
#include "foundation/fatal_error.hpp"
#include "styling/backgrounds.hpp"

namespace mirune {

using namespace swiftui;

namespace {

constexpr std::size_t columns = 7;
constexpr std::size_t wholeRows = 4;

/// What tells the two sizes apart, in points.
struct ChartLook {
  double titleSize = 13;
  double textsize = 14;
  std::optional<double> spacing = std::nullopt;  ///< between rows and between cells
};

constexpr ChartLook largeLook{.titleSize = 13, .textsize = 14, .spacing = 8};
/// With the platform's eight points between them the cells would be narrower than their numbers.
constexpr ChartLook smallLook{.titleSize = 11, .textsize = 9, .spacing = 2};

View title(const MoodEntry& entry, const ChartLook& look) {
  return text(entry.text)
      .font(system(look.titleSize, FontWeight::semibold))
      .kerning(1.5)
      .lineLimit(1)
      .minimumScaleFactor(0.5);
}

View cell(const MoodEntry& entry, std::size_t index, const ChartLook& look, std::int64_t today) {
  if (index >= entry.monthdata.size()) foundation::fatalError("a mood entry has fewer than 28 days of the month");
  const int day = static_cast<int>(index) + 1;
  return MoodUnitView{.selected = std::cmp_equal(index, entry.day),
                      .textsize = look.textsize,
                      .moodItem = entry.monthdata[index].moodData,
                      .day = day,
                      .isToday = day == today};
}

/// The rows of the chart. The last one is filled up with empty cells, so that its days are as large as the others and
/// every month is as high.
View rows(const MoodEntry& entry, const ChartLook& look, const foundation::Calendar& calendar) {
  const std::int64_t today = calendar.component(foundation::CalendarComponent::day, entry.date);
  std::vector<View> stacked;
  for (std::size_t row = 0; row <= wholeRows; ++row) {
    const std::size_t first = row * columns;
    const std::size_t end = row < wholeRows ? first + columns : std::max(first, entry.monthdata.size());
    std::vector<View> cells;
    for (std::size_t index = first; index < end; ++index) cells.push_back(cell(entry, index, look, today));
    while (cells.size() < columns) cells.emplace_back(MoodUnitView{.day = emptyCell});
    stacked.push_back(hstack({.spacing = look.spacing}, std::move(cells)).frame({.maxHeight = infinity}));
  }
  return vstack({.spacing = look.spacing}, std::move(stacked));
}

View ofFamily(const MoodEntry& entry, const EnvironmentValues& environment) {
  switch (environment.widgetFamily) {
    case WidgetFamily::systemSmall:
      return AddBackgroundModifier{.content = MoodChartViewActS{.entry = entry}};
    case WidgetFamily::systemMedium:
      return text("");
    case WidgetFamily::systemLarge:
      return AddBackgroundModifier{.content = MoodChartViewAct{.paddingt = 16, .entry = entry}};
    default:
      return text(environment.platform->words.localized("Not Supported"));
  }
}

}  // namespace

View MoodChartView::body(const EnvironmentValues& environment) const {
  return ofFamily(entry, environment).widgetURL(moodChartPage(*environment.platform));
}

View MoodChartViewAct::body(const EnvironmentValues& environment) const {
  const View days = rows(entry, largeLook, environment.platform->calendar);
  return vstack({}, {title(entry, largeLook).frame({.height = 20}), days}).padding(paddingt);
}

View MoodChartViewActS::body(const EnvironmentValues& environment) const {
  const View days = rows(entry, smallLook, environment.platform->calendar);
  return vstack({.spacing = 0}, {title(entry, smallLook).padding(10), days}).padding(10);
}

}  // namespace mirune
