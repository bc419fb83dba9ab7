#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "uikit/platform.hpp"

namespace mirune {

/// Which of `count` texts, from 0, is that of a day of the year, from 1: they follow one another from day to day, and
/// the year begins with the second. Without a day any of them, by chance. Stops the extension where there is no text.
std::int64_t thoughtIndex(std::optional<std::int64_t> dayOfYear, std::size_t count,
                          const foundation::RandomSource& random);

/// The same for the day of the moment in the device's time zone, in the years that ISO 8601 counts whatever calendar
/// the locale has.
std::int64_t thoughtIndexToday(const uikit::Platform& platform, std::size_t count);

}  // namespace mirune
