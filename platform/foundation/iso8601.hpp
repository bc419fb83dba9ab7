#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundation/date.hpp"

namespace foundation {

/// Reads an internet date-time as the platform's JSON decoder does: date, "T", time to the second, zone.
///
///   2024-03-07T10:00:00Z   2024-03-07T11:00:00+01:00   2024-03-07T11:00:00+0100   ->  the same instant
///   2024-02-30T10:00:00Z   ->  1 March: days and times roll over, months do not
///   2024-03-07T10:00:00.5Z, 2024-03-07, 2024-03-07t10:00:00z, 2024-03-07T10:00:00+01  ->  nothing
///
/// Text after a complete zone is ignored, as there.
std::optional<Date> parseISO8601(std::string_view text);

/// "2024-03-07T10:00:00Z": UTC, floored to the second; years have at least four digits.
std::string formatISO8601(Date date);

/// The same with milliseconds where there are any ("2024-03-07T10:00:00.250Z"): how moments are printed and exchanged.
std::string formatMoment(Date date);

/// Reads what formatMoment prints, and everything that parseISO8601 reads, but nothing behind the zone.
std::optional<Date> parseMoment(std::string_view text);

}  // namespace foundation
