#pragma once

#include <algorithm>
#include <chrono>

#include "foundation/date.hpp"

namespace host {

/// The pause after so many failures in a row: 1 s, 2 s, 4 s … a quarter of an hour.
inline std::chrono::seconds retryPause(int failures) {
  constexpr std::chrono::seconds longest = std::chrono::minutes(15);
  constexpr int doublings = 10;  // 1024 s are more than the longest
  return std::min(longest, std::chrono::seconds(1 << std::clamp(failures - 1, 0, doublings)));
}

/// When to try again what was to be tried at that moment: no later than a whole pause from now, should the clock have
/// been put back meanwhile.
inline foundation::Date retryMoment(foundation::Date planned, int failures, foundation::Date now) {
  return std::min(planned, now + retryPause(failures));
}

}  // namespace host
