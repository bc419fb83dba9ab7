#pragma once

#include <set>
#include <string>

#include "uikit/platform.hpp"

namespace mirune {

/// How many days the timelines of items show, today included.
inline constexpr int shownDays = 15;

using DayKeys = std::set<std::string, std::less<>>;

/// The keys of those days.
DayKeys shownDayKeys(const uikit::Platform& platform);

}  // namespace mirune
