#pragma once

#include <absl/time/time.h>

#include <optional>
#include <string>
#include <string_view>

namespace foundation {

/// A zone of the system's tz database ("Europe/Berlin"). A value; copying is cheap.
class TimeZone {
 public:
  /// UTC.
  TimeZone() = default;

  /// The zone of that name, or nothing: names are those below /usr/share/zoneinfo, and no paths.
  static std::optional<TimeZone> named(std::string_view name);

  std::string name() const { return zone_.name(); }

  /// The rules behind it, for Calendar.
  const absl::TimeZone& rules() const { return zone_; }

  friend bool operator==(const TimeZone&, const TimeZone&) = default;

 private:
  explicit TimeZone(absl::TimeZone zone) : zone_(zone) {}

  absl::TimeZone zone_ = absl::UTCTimeZone();
};

/// The name of the zone that the device is set to: `tz` (the TZ variable, empty if not set), else where /etc/localtime
/// points, else the first line of /etc/timezone, else "UTC". The name may still be unknown to the database.
std::string systemTimeZoneName(std::string_view tz);

}  // namespace foundation
