#include "timelines/providers.hpp"

#include "timelines/calendar_entries.hpp"
#include "timelines/event_entries.hpp"
#include "timelines/mood_entries.hpp"
#include "timelines/quote_entries.hpp"
#include "timelines/task_entries.hpp"
#include "timelines/task_event_entries.hpp"

namespace mirune {

SimpleEntry Provider::placeholder(const uikit::Platform& platform) const {
  MiruneShareResources::loadFonts(platform.resources);
  return {.date = platform.now};
}
std::vector<SimpleEntry> Provider::entries(const uikit::Platform& platform) {
  return quoteEntries(platform);
}

std::vector<TaskEntry> TaskProvider::entries(const uikit::Platform& platform) {
  return taskEntries(platform);
}
TaskEntry TaskProvider::fallback(const uikit::Platform& platform) {
  return emptyTaskEntry(platform.now, platform.words.localized("Tasks"));
}

std::vector<TaskEntry> HabitProvider::entries(const uikit::Platform& platform) {
  return habitEntries(platform);
}
TaskEntry HabitProvider::fallback(const uikit::Platform& platform) {
  return emptyTaskEntry(platform.now, platform.words.localized("Habits"));
}

std::vector<EventEntry> EventProvider::entries(const uikit::Platform& platform) {
  return eventEntries(platform);
}
EventEntry EventProvider::fallback(const uikit::Platform& platform) {
  return emptyEventEntry(platform);
}

std::vector<TaskEventEntry> TaskAndEventProvider::entries(const uikit::Platform& platform) {
  return taskEventEntries(platform);
}
TaskEventEntry TaskAndEventProvider::fallback(const uikit::Platform& platform) {
  return emptyTaskEventEntry(platform);
}

std::vector<CalendarEntry> CalendarProvider::entries(const uikit::Platform& platform) {
  return calendarEntries(platform);
}
CalendarEntry CalendarProvider::fallback(const uikit::Platform& platform) {
  return calendarEntry(platform.calendar, platform.now);
}

std::vector<MoodEntry> MoodProvider::entries(const uikit::Platform& platform) {
  return moodEntries(platform);
}
MoodEntry MoodProvider::fallback(const uikit::Platform& platform) {
  return {.date = platform.now, .text = platform.words.localized("Moods"), .day = 1};
}
widgetkit::TimelineReloadPolicy MoodProvider::policy(const uikit::Platform& platform) {
  constexpr std::chrono::seconds day(86400);
  return widgetkit::TimelineReloadPolicy::after(platform.calendar.startOfDay(platform.now) + day);
}

}  // namespace mirune
