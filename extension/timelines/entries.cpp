#include "timelines/entries.hpp"

namespace mirune {

TaskEntry emptyTaskEntry(foundation::Date date, std::string name) {
  return {.date = date, .name = std::move(name)};
}
EventEntry emptyEventEntry(const uikit::Platform& platform) {
  return {.date = platform.now, .name = platform.words.localized("Events")};
}
TaskEventEntry emptyTaskEventEntry(const uikit::Platform& platform) {
  return {.date = platform.now,
          .taskEntry = emptyTaskEntry(platform.now, platform.words.localized("Tasks")),
          .eventEntry = emptyEventEntry(platform)};
}

}  // namespace mirune
