#pragma once

#include <cstdint>
#include <optional>

#include "foundation/calendar.hpp"

namespace foundation {

/// The calendar system that a locale uses unless told otherwise: its "@calendar=" keyword, else its region's, else its
/// language's. Regions and languages are those of the Unicode locale data (version 42).
CalendarIdentifier calendarIdentifierOf(const Locale& locale);

/// Whether months, days and year lengths are the Gregorian ones.
bool hasGregorianDays(CalendarIdentifier identifier);

/// What a foreign calendar system knows of a day.
enum class CalendarField { year, month, dayOfMonth, dayOfYear, lengthOfMonth };

/// Asks ICU; `wallClock` is the local time as if it were GMT. Nothing where ICU has no answer.
std::optional<std::int64_t> calendarField(CalendarIdentifier identifier, CalendarField field,
                                          std::chrono::sys_seconds wallClock);

}  // namespace foundation
