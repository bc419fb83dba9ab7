#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "foundation/date.hpp"
#include "foundation/uuid.hpp"
#include "shared/daily_mood.hpp"
#include "timelines/event_list.hpp"
#include "uikit/platform.hpp"

namespace mirune {

// What builders make and views draw. An entry is shown from its date on.

/// The quote of the day: which one is decided when it is drawn.
struct SimpleEntry {
  foundation::Date date = {};
  friend bool operator==(const SimpleEntry&, const SimpleEntry&) = default;
};

/// One open task or habit.
struct TaskWidgetInner {
  foundation::UUID id = {};
  std::string title = {};
  bool isOn = false;
  foundation::Date date = {};  ///< the day of the entry that it stands in
  friend bool operator==(const TaskWidgetInner&, const TaskWidgetInner&) = default;
};

/// What TaskEntry::itemtype tells apart.
inline constexpr std::int64_t taskItems = 0;
inline constexpr std::int64_t habitItems = 1;

/// The tasks or the habits of a day.
struct TaskEntry {
  foundation::Date date = {};
  std::vector<TaskWidgetInner> data = {};  ///< the open ones, in the planner's order
  std::int64_t itemtype = taskItems;
  std::int64_t count = 0;           ///< how many are open
  std::int64_t totalTaskCount = 0;  ///< how many there are, open or done
  std::int64_t image = 0;           ///< picks the header's badge
  std::string name = {};            ///< the list's title
  friend bool operator==(const TaskEntry&, const TaskEntry&) = default;
};

/// The events that are still to come at a moment of a day.
struct EventEntry {
  foundation::Date date = {};
  EventList data = {};  ///< in the order of their start
  std::int64_t count = 0;
  std::int64_t image = 0;
  std::string name = {};
  friend bool operator==(const EventEntry&, const EventEntry&) = default;
};

struct TaskEventEntry {
  foundation::Date date = {};
  TaskEntry taskEntry = {};
  EventEntry eventEntry = {};
  friend bool operator==(const TaskEventEntry&, const TaskEventEntry&) = default;
};

struct CalendarEntry {
  foundation::Date date = {};
  foundation::Date month_date = {};  ///< midnight of the first day of the month to draw
  foundation::Date today_date = {};  ///< midnight of the day to mark
  friend bool operator==(const CalendarEntry&, const CalendarEntry&) = default;
};

/// The mood of one day.
struct MoodWidgetInner {
  foundation::UUID id = {};
  MiruneDailyMood moodData = {};
  std::string text = {};  ///< the day's number in its month
  friend bool operator==(const MoodWidgetInner&, const MoodWidgetInner&) = default;
};

struct MoodEntry {
  foundation::Date date = {};
  std::vector<MoodWidgetInner> data = {};                     ///< the last six days, the oldest first
  std::vector<MoodWidgetInner> monthdata = {};                ///< every day of the month
  std::map<std::string, MoodWidgetInner> monthdatadict = {};  ///< the same by their text
  std::string text = {};
  std::int64_t day = 0;
  friend bool operator==(const MoodEntry&, const MoodEntry&) = default;
};

// Shown where a builder has nothing.

TaskEntry emptyTaskEntry(foundation::Date date, std::string name);
EventEntry emptyEventEntry(const uikit::Platform& platform);
TaskEventEntry emptyTaskEventEntry(const uikit::Platform& platform);

}  // namespace mirune
