#pragma once

#include "foundation/calendar.hpp"

namespace host {

/// The first instant of the next day of that calendar's zone; always after `moment`. On a day of which a clock change
/// skips the midnight it is where the day begins; a day that is skipped as a whole has none.
/// At the end of all dates the last of them.
foundation::Date nextMidnight(const foundation::Calendar& calendar, foundation::Date moment);

}  // namespace host
