#pragma once

#include "timelines/entries.hpp"
#include "timelines/entry_provider.hpp"

namespace mirune {

/// Of the quote of the day. What is drawn depends on the day of drawing only, so placeholder and snapshot need no list.
struct Provider : EntryProvider<Provider, SimpleEntry> {
  SimpleEntry placeholder(const uikit::Platform& platform) const;
  SimpleEntry snapshot(const uikit::Platform& platform) const { return placeholder(platform); }
  static std::vector<SimpleEntry> entries(const uikit::Platform& platform);
};

struct TaskProvider : EntryProvider<TaskProvider, TaskEntry> {
  static std::vector<TaskEntry> entries(const uikit::Platform& platform);
  static TaskEntry fallback(const uikit::Platform& platform);
};

struct HabitProvider : EntryProvider<HabitProvider, TaskEntry> {
  static std::vector<TaskEntry> entries(const uikit::Platform& platform);
  static TaskEntry fallback(const uikit::Platform& platform);
};

struct EventProvider : EntryProvider<EventProvider, EventEntry> {
  static std::vector<EventEntry> entries(const uikit::Platform& platform);
  static EventEntry fallback(const uikit::Platform& platform);
};

struct TaskAndEventProvider : EntryProvider<TaskAndEventProvider, TaskEventEntry> {
  static std::vector<TaskEventEntry> entries(const uikit::Platform& platform);
  static TaskEventEntry fallback(const uikit::Platform& platform);
};

struct CalendarProvider : EntryProvider<CalendarProvider, CalendarEntry> {
  static std::vector<CalendarEntry> entries(const uikit::Platform& platform);
  static CalendarEntry fallback(const uikit::Platform& platform);
};

/// Of both mood widgets. It asks again 86,400 seconds after the start of today, which on a day of another length is an
/// hour off midnight.
struct MoodProvider : EntryProvider<MoodProvider, MoodEntry> {
  static std::vector<MoodEntry> entries(const uikit::Platform& platform);
  static MoodEntry fallback(const uikit::Platform& platform);
  static widgetkit::TimelineReloadPolicy policy(const uikit::Platform& platform);
};

}  // namespace mirune
