#include "timelines/thought_of_the_day.hpp"

#include "foundation/fatal_error.hpp"

namespace mirune {

std::int64_t thoughtIndex(std::optional<std::int64_t> dayOfYear, std::size_t count,
                          const foundation::RandomSource& random) {
  if (count == 0) foundation::fatalError("there are no sayings");
  // Drawn from 0 to the count, both included: the first saying has two chances. Of 64 bits the remainder is as good as
  // even.
  const auto drawn = [&] { return static_cast<std::int64_t>(random() % (count + 1)); };
  return (dayOfYear ? *dayOfYear : drawn()) % static_cast<std::int64_t>(count);
}

std::int64_t thoughtIndexToday(const uikit::Platform& platform, std::size_t count) {
  const auto calendar = foundation::Calendar::iso8601(platform.calendar.timeZone());
  return thoughtIndex(calendar.ordinalityOfDayInYear(platform.now), count, platform.random);
}

}  // namespace mirune
