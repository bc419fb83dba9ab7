#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include "foundation/date.hpp"

// What the benchmarks read: files as a planner that has been used for a while exports them. The same at every run.

namespace benchmarks {

/// The moment at which the files are read: of ten years of days, the fifteen days from here on are the last ones.
foundation::Date readingMoment();

/// A file of items, at least so many bytes long: day after day of events.
std::string eventsOfSize(std::size_t bytes);

/// Writes ten years of a planner into a folder: tasks that come back, habits with the streaks in which they were kept,
/// events, a mood on most days. About 100 000 items and 22 MB.
void writeTenYears(const std::filesystem::path& folder);

}  // namespace benchmarks
