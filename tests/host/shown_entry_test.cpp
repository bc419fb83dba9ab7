#include "host/shown_entry.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace {

foundation::Date at(int seconds) {
  return foundation::Date(std::chrono::seconds(seconds));
}

TEST(ShownEntry, IsTheLatestThatIsDueElseTheEarliestAhead) {
  struct Case {
    const char* name;
    std::vector<int> dates;
    int moment;
    std::optional<std::size_t> shown;
  };
  const std::vector<Case> cases = {
      {"nothing to show", {}, 10, std::nullopt},
      {"the only one, due", {5}, 10, 0},
      {"the only one, ahead", {15}, 10, 0},
      {"due at this very moment", {5, 10, 15}, 10, 1},
      {"a second before the next", {5, 10, 15}, 9, 0},
      {"long after the last", {5, 10, 15}, 1000, 2},
      {"the earliest where all lie ahead", {30, 20, 40}, 10, 1},
      {"order does not matter", {15, 5, 10, 1}, 12, 2},
      {"the last of equal dates", {5, 8, 8, 3}, 10, 2},
      {"the last of equal dates ahead", {20, 15, 15, 30}, 10, 2},
      {"an old one rather than one soon", {-100000, 11}, 10, 0},
  };
  for (const auto& [name, seconds, moment, shown] : cases) {
    std::vector<foundation::Date> dates;
    for (const int second : seconds) dates.push_back(at(second));
    EXPECT_EQ(host::shownEntry(dates, at(moment)), shown) << name;
  }
}

}  // namespace
