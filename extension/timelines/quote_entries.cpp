#include "timelines/quote_entries.hpp"

#include "timelines/days.hpp"

namespace mirune {

std::vector<SimpleEntry> quoteEntries(const uikit::Platform& platform) {
  constexpr int days = 30;
  const auto start = platform.calendar.startOfDay(platform.now);
  std::vector<SimpleEntry> entries;
  for (int i = 0; i < days; ++i) entries.push_back({.date = dayAfter(platform.calendar, start, i)});
  return entries;
}

}  // namespace mirune
