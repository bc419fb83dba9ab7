#include "catalogue/widgets.hpp"

#include "calendar_mood/calendar_month_view.hpp"
#include "calendar_mood/mood_chart_view.hpp"
#include "calendar_mood/mood_check_in_view.hpp"
#include "catalogue/forced_theme.hpp"
#include "catalogue/not_drawn_yet.hpp"
#include "lists/event_widget_view_wrapper.hpp"
#include "lists/mirune_widgets_entry_view.hpp"
#include "lists/task_event_view.hpp"
#include "lists/task_widget_view_wrapper.hpp"
#include "lists/thoughts.hpp"
#include "styling/backgrounds.hpp"
#include "timelines/providers.hpp"

namespace mirune {

using swiftui::View;
using swiftui::WidgetFamily;
using uikit::Platform;
using widgetkit::StaticConfiguration;

namespace {

/// From this version on the lock screen has widgets.
constexpr int lockScreenVersion = 16;
/// From this version on the system draws backgrounds and margins of its own, which these widgets do without.
constexpr int contentMarginsVersion = 17;

using Families = std::vector<WidgetFamily>;

/// What the gallery shows of a kind.
struct GalleryText {
  const char* shortName = "";
  const char* displayName = "";
  const char* description = "";
};

/// The modifiers that every kind ends with.
StaticConfiguration finished(const StaticConfiguration& widget, const Families& families, const GalleryText& text,
                             const Platform& platform) {
  StaticConfiguration result = widget.supportedFamilies(families);
  if (platform.systemVersion >= contentMarginsVersion) {
    result = result.containerBackgroundRemovable(false).contentMarginsDisabled();
  }
  return result.configurationDisplayName(platform.words.localized(text.displayName))
      .description(platform.words.localized(text.description))
      .shortName(text.shortName);
}

/// The families of a kind that is offered on the lock screen, too, where there is one.
Families withLockScreen(Families lockScreen, const Platform& platform) {
  if (platform.systemVersion < lockScreenVersion) lockScreen.clear();
  lockScreen.insert(lockScreen.end(), {WidgetFamily::systemSmall, WidgetFamily::systemMedium});
  return lockScreen;
}

/// A view in the planner's theme, whatever the system is set to.
View themed(View content) {
  return ForcedTheme{.content = std::move(content)};
}

View onPaper(View content) {
  return AddBackgroundModifier{.content = themed(std::move(content))};
}

}  // namespace

StaticConfiguration Mirune_Widgets5::body(const Platform& platform) const {
  return finished(
      {kind, MoodProvider{}, [](const MoodEntry& entry) { return themed(Mirune_WidgetsEntryViewNew{.entry = entry}); }},
      {WidgetFamily::systemMedium, WidgetFamily::systemSmall},
      {.shortName = "mood", .displayName = "Mood Check-In", .description = "How are you feeling today?"}, platform);
}

StaticConfiguration Mirune_Widgets6::body(const Platform& platform) const {
  return finished({kind, MoodProvider{}, [](const MoodEntry& entry) { return themed(MoodChartView{.entry = entry}); }},
                  {WidgetFamily::systemSmall, WidgetFamily::systemLarge},
                  {.shortName = "moods", .displayName = "Moods", .description = "Monthly moods view"}, platform);
}

StaticConfiguration Mirune_Widgets2::body(const Platform& platform) const {
  return finished(
      {kind, TaskProvider{}, [](const TaskEntry& entry) { return View(TaskWidgetViewWrapper{.entry = entry}); }},
      withLockScreen({WidgetFamily::accessoryCircular, WidgetFamily::accessoryRectangular}, platform),
      {.shortName = "tasks", .displayName = "Tasks", .description = "Keep track of your tasks."}, platform);
}

StaticConfiguration Mirune_Widgets3::body(const Platform& platform) const {
  return finished(
      {kind, HabitProvider{}, [](const TaskEntry& entry) { return View(TaskWidgetViewWrapper{.entry = entry}); }},
      withLockScreen({WidgetFamily::accessoryCircular, WidgetFamily::accessoryRectangular}, platform),
      {.shortName = "habits", .displayName = "Habits", .description = "Keep track of your habits."}, platform);
}

StaticConfiguration Mirune_Widgets4::body(const Platform& platform) const {
  return finished(
      {kind, EventProvider{}, [](const EventEntry& entry) { return View(EventWidgetViewWrapper{.entry = entry}); }},
      withLockScreen({WidgetFamily::accessoryRectangular, WidgetFamily::accessoryInline}, platform),
      {.shortName = "events",
       .displayName = "Events",
       .description = "Keep track of your upcoming events and meetings."},
      platform);
}

StaticConfiguration Mirune_Widgets::body(const Platform& platform) const {
  return finished(
      {kind, Provider{},
       [](const SimpleEntry& entry) {
         return onPaper(Mirune_WidgetsEntryView{.entry = entry, .thoughts = thoughtTable()});
       }},
      {WidgetFamily::systemMedium},
      {.shortName = "quote", .displayName = "Quote of the Day", .description = "Get daily inspirational quotes."},
      platform);
}

StaticConfiguration Mirune_Widgets7::body(const Platform& platform) const {
  return finished(
      {kind, CalendarProvider{}, [](const CalendarEntry& entry) { return onPaper(CalendarMonthView{.entry = entry}); }},
      {WidgetFamily::systemSmall},
      {.shortName = "calendar", .displayName = "Calendar", .description = "Monthly Calendar"}, platform);
}

StaticConfiguration Mirune_Widgets8::body(const Platform& platform) const {
  return finished({kind, TaskAndEventProvider{},
                   [](const TaskEventEntry& entry) { return onPaper(TaskEventView{.entry = entry}); }},
                  {WidgetFamily::systemMedium},
                  {.shortName = "combined", .displayName = "Events and Tasks", .description = "Events and Tasks"},
                  platform);
}

}  // namespace mirune
