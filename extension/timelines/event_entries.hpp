#pragma once

#include <vector>

#include "timelines/entries.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// The events of today and the fourteen days after, out of the planner's event file.
///
/// A day without items has one entry, at its start. A day with events has one at its start, and one at each moment at
/// which an event begins or ends, holding what is not over by then; an all-day event stays through the day. An event
/// keeps its clock times on whatever day it is filed under. Entries stand day by day, those of a day in the order in
/// which its sorted events begin and end: the list need not be in time order.
std::vector<EventEntry> eventEntries(const uikit::Platform& platform);

}  // namespace mirune
