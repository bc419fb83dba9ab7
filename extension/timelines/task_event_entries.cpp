#include "timelines/task_event_entries.hpp"

#include <algorithm>

#include "timelines/event_entries.hpp"
#include "timelines/task_entries.hpp"

namespace mirune {

std::vector<TaskEventEntry> merged(std::vector<TaskEntry> tasks, std::vector<EventEntry> events,
                                   const TaskEventEntry& fallback) {
  std::ranges::stable_sort(tasks, {}, &TaskEntry::date);
  std::ranges::stable_sort(events, {}, &EventEntry::date);
  std::vector<TaskEventEntry> entries;
  auto task = tasks.begin();
  auto event = events.begin();
  while (task != tasks.end() || event != events.end()) {
    const bool isTaskDue = event == events.end() || (task != tasks.end() && task->date <= event->date);
    const bool isEventDue = task == tasks.end() || (event != events.end() && event->date <= task->date);
    const foundation::Date date = isTaskDue ? task->date : event->date;
    if (isTaskDue) ++task;
    if (isEventDue) ++event;
    entries.push_back({.date = date,
                       .taskEntry = task == tasks.begin() ? fallback.taskEntry : *std::prev(task),
                       .eventEntry = event == events.begin() ? fallback.eventEntry : *std::prev(event)});
  }
  return entries;
}

std::vector<TaskEventEntry> taskEventEntries(const uikit::Platform& platform) {
  return merged(taskEntries(platform), eventEntries(platform), emptyTaskEventEntry(platform));
}

}  // namespace mirune
