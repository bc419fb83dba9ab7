#include <absl/time/civil_time.h>

#include "foundation/calendar.hpp"

namespace foundation {

namespace {

bool isTimeOfDay(int hour, int minute, int second) {
  return 0 <= hour && hour < 24 && 0 <= minute && minute < 60 && 0 <= second && second < 60;
}

}  // namespace

std::optional<Date> Calendar::dateBySettingHour(int hour, int minute, int second, Date of) const {
  using Moment = absl::TimeZone::TimeInfo;
  if (!isTimeOfDay(hour, minute, second)) return std::nullopt;

  const auto& zone = timeZone_.rules();
  const auto dateAt = [](absl::Time time) { return Date(TimeInterval(absl::ToUnixMillis(time))); };
  const auto day = absl::ToCivilDay(absl::FromUnixMillis(of.time_since_epoch().count()), zone);
  const absl::CivilSecond wallClock(day.year(), day.month(), day.day(), hour, minute, second);
  const auto moment = zone.At(wallClock);
  if (moment.kind != Moment::SKIPPED) return dateAt(moment.pre);
  if (moment.pre - moment.post >= absl::Hours(1)) return dateAt(moment.trans);
  return dateAt(zone.At(absl::CivilSecond(day.year(), day.month(), day.day() + 1, hour, minute, second)).pre);
}

}  // namespace foundation
