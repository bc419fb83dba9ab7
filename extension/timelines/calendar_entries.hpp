#pragma once

#include <vector>

#include "timelines/entries.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// The month and the marked day as they are at a moment.
CalendarEntry calendarEntry(const foundation::Calendar& calendar, foundation::Date date);

/// One entry now and one at each of the next four midnights.
std::vector<CalendarEntry> calendarEntries(const uikit::Platform& platform);

}  // namespace mirune
