#include "timelines/providers.hpp"

#include "timelines/calendar_entries.hpp"
#include "timelines/mood_entries.hpp"
#include "timelines/quote_entries.hpp"
#include "timelines/task_entries.hpp"

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

// The builders of events and of events with tasks are not there yet: their lists are empty, and placeholder
// and snapshot show the fallback.

std::vector<EventEntry> EventProvider::entries(const uikit::Platform&) {
  return {};
}
EventEntry EventProvider::fallback(const uikit::Platform& platform) {
  return emptyEventEntry(platform.now, platform.words.localized("Events"));
}

std::vector<TaskEventEntry> TaskAndEventProvider::entries(const uikit::Platform&) {
  return {};
}
TaskEventEntry TaskAndEventProvider::fallback(const uikit::Platform& platform) {
  return {.date = platform.now,
          .taskEntry = TaskProvider::fallback(platform),
          .eventEntry = EventProvider::fallback(platform)};
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
