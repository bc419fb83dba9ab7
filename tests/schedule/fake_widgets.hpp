#pragma once

#include <vector>

#include "schedule/virtual_host.hpp"

// Widgets that ask in the ways of the planner's widgets.

namespace host {

/// The start of the day that lies so many days later; always where that day begins, so that a test can tell today's
/// entry by it. (The planner's widgets stay at 01:00 once a day has begun there.)
foundation::Date dayAfter(const foundation::Calendar& calendar, foundation::Date day, int days);

/// An entry for the start of each of so many days, from today on: tasks and habits (15).
FakeWidget dailyWidget(int days);

/// Many moments of each of 15 days, in no order and some more than once.
FakeWidget eventsWidget();

/// One entry, now, good until 86,400 seconds after the start of today.
FakeWidget moodWidget();

}  // namespace host
