#include "calendar_mood/mood_check_in_view.hpp"

#include "calendar_mood/mood_chart_view.hpp"
#include "calendar_mood/mood_day_view.hpp"
#include "calendar_mood/planner_pages.hpp"
#include "calendar_mood/spoken_day.hpp"
#include "calendar_mood/title_font.hpp"
#include "foundation/fatal_error.hpp"
#include "styling/backgrounds.hpp"
#include "timelines/days.hpp"

namespace mirune {

using namespace swiftui;

namespace {

constexpr std::size_t stripDays = 6;
constexpr std::size_t today = stripDays - 1;
constexpr double margin = 16;

const MoodWidgetInner& dayAt(const MoodEntry& entry, std::size_t index) {
  if (index >= entry.data.size()) foundation::fatalError("a mood entry has fewer than six days");
  return entry.data[index];
}

/// Today's mood; none where the planner says that there is none.
MiruneDailyMood moodOfToday(const MoodEntry& entry) {
  const MoodWidgetInner& day = dayAt(entry, today);
  return day.text == "-1" ? MiruneDailyMood{} : day.moodData;
}

View title(const uikit::Platform& platform) {
  return text(platform.words.localized("How are you feeling today?"))
      .font(moodTitleFont(platform.words))
      .minimumScaleFactor(0.1);
}

}  // namespace

View Mirune_WidgetsEntryViewNew::body(const EnvironmentValues& environment) const {
  switch (environment.widgetFamily) {
    case WidgetFamily::systemSmall:
      return AddBackgroundModifier{.content = Mirune_WidgetsEntryViewNewVV{.entry = entry}};
    case WidgetFamily::systemMedium:
      return AddBackgroundModifier{.content = Mirune_WidgetsEntryViewNewAA{.entry = entry}};
    case WidgetFamily::systemLarge:
      return AddBackgroundModifier{.content = MoodChartViewAct{.paddingt = margin, .entry = entry}};
    default:
      return text(environment.platform->words.localized("Not Supported"));
  }
}

View Mirune_WidgetsEntryViewNewAA::body(const EnvironmentValues& environment) const {
  const uikit::Platform& platform = *environment.platform;
  const foundation::Calendar& calendar = platform.calendar;
  const foundation::Date startOfToday = calendar.startOfDay(entry.date);
  const std::string nameOfToday = platform.words.localized("Today");
  std::vector<View> cells;
  for (std::size_t i = 0; i < today; ++i) {
    const MoodWidgetInner& day = dayAt(entry, i);
    const int position = static_cast<int>(today - i);
    cells.emplace_back(Mood_DayView{.moodItem = day.moodData,
                                    .day = day.text,
                                    .position = position,
                                    .spoken = spokenDay(calendar, dayAfter(calendar, startOfToday, -position))});
  }
  cells.emplace_back(
      Mood_DayView{.moodItem = moodOfToday(entry), .day = nameOfToday, .position = 0, .spoken = nameOfToday});
  for (View& cell : cells) cell = cell.frame({.maxWidth = infinity});
  return vstack({.alignment = HorizontalAlignment::leading, .spacing = 0},
                {title(platform).lineLimit(1).frame(
                     {.maxWidth = infinity, .maxHeight = infinity, .alignment = Alignment::leading}),
                 hstack({.spacing = 7}, std::move(cells)).layoutPriority(1)})
      .padding(margin);
}

View Mirune_WidgetsEntryViewNewVV::body(const EnvironmentValues& environment) const {
  const uikit::Platform& platform = *environment.platform;
  return vstack({.alignment = HorizontalAlignment::leading, .spacing = 6},
                {title(platform).frame({.maxWidth = infinity, .maxHeight = infinity, .alignment = Alignment::leading}),
                 View(MoodCell{.moodItem = moodOfToday(entry)}).frame({.width = 52, .height = 52})})
      .padding(margin)
      .widgetURL(moodPage(platform, 0));
}

}  // namespace mirune
