#pragma once

#include <absl/time/civil_time.h>

#include "foundation/date.hpp"
#include "foundation/time_zone.hpp"

// What the clocks of a zone show, for the operations of the calendar.

namespace foundation {

absl::CivilSecond civilSecond(Date date, const TimeZone& zone);

/// The local time as if it were UTC: how ICU is told of a moment.
std::chrono::sys_seconds wallClock(Date date, const TimeZone& zone);

/// The day in which the moment lies, as days since 1970-01-01.
std::int64_t localDay(Date date, const TimeZone& zone);

/// The first instant of such a day: 01:00 where midnight does not exist, the first of two midnights.
Date firstInstant(std::int64_t localDay, const TimeZone& zone);

}  // namespace foundation
