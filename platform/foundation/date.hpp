#pragma once

#include <chrono>

namespace foundation {

/// An instant, in milliseconds since 1970-01-01T00:00:00Z without leap seconds. Good for the years ±292 million.
using Date = std::chrono::sys_time<std::chrono::milliseconds>;

using TimeInterval = std::chrono::milliseconds;

/// The second in which the instant lies: floored, so 0.001 s before 1970 is second -1.
inline std::chrono::sys_seconds secondOf(Date date) {
  return std::chrono::floor<std::chrono::seconds>(date);
}

}  // namespace foundation
