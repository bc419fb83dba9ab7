#pragma once

#include <string>

#include "foundation/calendar.hpp"
#include "foundation/words.hpp"

namespace mirune {

// What a screen reader says of a day of which a number is seen, or a colour.

/// "Saturday, November 21"
std::string spokenDay(const foundation::Calendar& calendar, foundation::Date day);

/// "Today, Saturday, November 21"
std::string spokenToday(const foundation::Words& words, const std::string& day);

}  // namespace mirune
