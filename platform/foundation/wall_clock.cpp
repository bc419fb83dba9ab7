#include "foundation/wall_clock.hpp"

namespace foundation {

using std::chrono::seconds;

absl::CivilSecond civilSecond(Date date, const TimeZone& zone) {
  return absl::ToCivilSecond(absl::FromUnixSeconds(secondOf(date).time_since_epoch().count()), zone.rules());
}

std::chrono::sys_seconds wallClock(Date date, const TimeZone& zone) {
  static const absl::CivilSecond epoch(1970, 1, 1);
  return std::chrono::sys_seconds(seconds(civilSecond(date, zone) - epoch));
}

std::int64_t localDay(Date date, const TimeZone& zone) {
  return std::chrono::floor<std::chrono::days>(wallClock(date, zone)).time_since_epoch().count();
}

Date firstInstant(std::int64_t localDay, const TimeZone& zone) {
  const absl::CivilDay day = absl::CivilDay(1970, 1, 1) + localDay;
  const absl::TimeZone::TimeInfo midnight = zone.rules().At(absl::CivilSecond(day));
  const absl::Time first = midnight.kind == absl::TimeZone::TimeInfo::SKIPPED ? midnight.trans : midnight.pre;
  return Date(seconds(absl::ToUnixSeconds(first)));
}

}  // namespace foundation
