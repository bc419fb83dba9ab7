#include "host/live/live_clock.hpp"

#include <algorithm>

namespace host {

using foundation::Date;
using foundation::TimeInterval;

LiveClock::LiveClock(Date start, double speed)
    : start_(start), began_(std::chrono::steady_clock::now()), speed_(speed) {}

Date LiveClock::now() const {
  if (!start_) return std::chrono::floor<TimeInterval>(std::chrono::system_clock::now());
  const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - began_;
  return *start_ + TimeInterval(static_cast<std::int64_t>(passed.count() * speed_));
}

std::chrono::nanoseconds LiveClock::until(Date moment) const {
  const std::chrono::duration<double, std::nano> wait = (moment - now()) / speed_;
  constexpr double longest = 365.0 * 86400e9;
  return std::chrono::nanoseconds(static_cast<std::int64_t>(std::clamp(wait.count(), 0.0, longest)));
}

}  // namespace host
