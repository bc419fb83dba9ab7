#pragma once

#include <cstdint>
#include <optional>

#include "uikit/platform.hpp"

namespace mirune {

/// The offset of the badges' cycle of 104 when the first day of use is that day of its year: such that the day's badge
/// is the second one. From 1 to 104.
std::int64_t colorOffsetFor(std::int64_t ordinalOfDay);

/// The offset that the shared settings hold. Where they hold none yet it is worked out from today and stored, once for
/// an installation; without settings it is worked out and not stored. 0 where the calendar does not number today.
std::int64_t fixedColorOffset(const uikit::Platform& platform);

/// The number that picks the badge of a day: the offset plus the day's place in its year.
std::int64_t badgeNumber(std::int64_t offset, const foundation::Calendar& calendar, foundation::Date day);

}  // namespace mirune
