#include "timelines/entries.hpp"

namespace mirune {

TaskEntry emptyTaskEntry(foundation::Date date, std::string name) {
  return {.date = date, .name = std::move(name)};
}
EventEntry emptyEventEntry(foundation::Date date, std::string name) {
  return {.date = date, .name = std::move(name)};
}

}  // namespace mirune
