#pragma once

#include <expected>
#include <string>
#include <string_view>

#include "foundation/date.hpp"
#include "foundation/time_zone.hpp"

namespace host {

/// Fills in the placeholders of a demo file. Today is the day of `now` in that zone.
///
///   {day-3}          ->  2026/11/18            the key of the day three days before today
///   {time+1 09:30}   ->  2026-11-22T08:30:00Z  that wall clock on the day after today; one that the day skips gives
///                                              the first moment after the gap
///
/// A brace that no letter follows stands for itself. Anything else in braces is the error: the placeholder's text.
std::expected<std::string, std::string> expandTemplate(std::string_view text, foundation::Date now,
                                                       const foundation::TimeZone& timeZone);

}  // namespace host
