#pragma once

namespace mirune {

/// How many days the timelines of items show, today included.
inline constexpr int shownDays = 15;

}  // namespace mirune
