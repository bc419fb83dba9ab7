#include "foundation/gregorian_days.hpp"

#include <tuple>

namespace foundation {
namespace {

// Both calendars count from 1 March of year 0, so that the leap day is the last of a year.
constexpr int daysOf4Years = 1461;
constexpr int daysOf400Years = 146'097;
constexpr std::int64_t gregorianEpoch = -719'468;  // 0000-03-01 Gregorian
constexpr std::int64_t julianEpoch = -719'470;     // 0000-03-01 Julian
constexpr std::int64_t firstGregorianDay = -141'427;

std::int64_t flooredQuotient(std::int64_t a, std::int64_t b) {
  return a / b - (a % b < 0 ? 1 : 0);
}

struct MarchYear {
  std::int64_t year;
  std::int64_t dayOfYear;
};

CivilDay fromMarchYear(MarchYear march) {
  const auto monthFromMarch = static_cast<int>((5 * march.dayOfYear + 2) / 153);
  const int day = static_cast<int>(march.dayOfYear) - (153 * monthFromMarch + 2) / 5 + 1;
  const int month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
  return {.year = march.year + (month <= 2 ? 1 : 0), .month = month, .day = day};
}

}  // namespace

std::int64_t daysSince1970(const CivilDay& civil) {
  const std::int64_t year = civil.year - (civil.month <= 2 ? 1 : 0);
  const int monthFromMarch = civil.month > 2 ? civil.month - 3 : civil.month + 9;
  const int dayOfYear = (153 * monthFromMarch + 2) / 5 + civil.day - 1;
  const std::int64_t julianDays = 365 * year + flooredQuotient(year, 4) + dayOfYear;
  if (std::tuple(civil.year, civil.month, civil.day) < std::tuple(std::int64_t{1582}, 10, 15)) {
    return julianEpoch + julianDays;
  }
  return gregorianEpoch + julianDays - flooredQuotient(year, 100) + flooredQuotient(year, 400);
}

CivilDay civilDay(std::int64_t days) {
  if (days < firstGregorianDay) {
    const std::int64_t sinceEpoch = days - julianEpoch;
    const std::int64_t cycle = flooredQuotient(sinceEpoch, daysOf4Years);
    const std::int64_t dayOfCycle = sinceEpoch - cycle * daysOf4Years;
    const std::int64_t yearOfCycle = (dayOfCycle - dayOfCycle / 1460) / 365;
    return fromMarchYear({cycle * 4 + yearOfCycle, dayOfCycle - 365 * yearOfCycle});
  }
  const std::int64_t sinceEpoch = days - gregorianEpoch;
  const std::int64_t era = flooredQuotient(sinceEpoch, daysOf400Years);
  const std::int64_t dayOfEra = sinceEpoch - era * daysOf400Years;
  const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36'524 - dayOfEra / 146'096) / 365;
  const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  return fromMarchYear({era * 400 + yearOfEra, dayOfYear});
}

int weekdayOf(std::int64_t days) {
  constexpr std::int64_t sundaysOffset = 4;  // 1970-01-01 was a Thursday, four days after a Sunday
  const std::int64_t afterSunday = (days + sundaysOffset) % 7;
  return static_cast<int>((afterSunday + 7) % 7) + 1;
}

}  // namespace foundation
