#pragma once

#include <cstdint>

namespace foundation {

/// A day of the civil calendar: Gregorian from 15 October 1582, Julian before, with a year 0 (1 BC).
struct CivilDay {
  std::int64_t year = 1970;
  int month = 1;
  int day = 1;
  friend bool operator==(const CivilDay&, const CivilDay&) = default;
};

/// Days since 1970-01-01. The day of the month may be past the month's end.
std::int64_t daysSince1970(const CivilDay& day);

/// The day that so many days lie before.
CivilDay civilDay(std::int64_t daysSince1970);

/// 1 for Sunday to 7 for Saturday.
int weekdayOf(std::int64_t daysSince1970);

}  // namespace foundation
