#include "calendar_mood/spoken_day.hpp"

#include "foundation/date_formatter.hpp"

namespace mirune {

std::string spokenDay(const foundation::Calendar& calendar, foundation::Date day) {
  return foundation::DateFormatter::weekdayAndDay(calendar).string(day);
}

std::string spokenToday(const foundation::Words& words, const std::string& day) {
  return words.localized("Today") + ", " + day;
}

}  // namespace mirune
