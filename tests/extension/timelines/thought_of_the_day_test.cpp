#include "timelines/thought_of_the_day.hpp"

#include <gtest/gtest.h>

#include <set>

#include "planner.hpp"

namespace mirune {
namespace {

constexpr std::size_t count = 140;

TEST(ThoughtOfTheDay, FollowsTheDayOfTheYear) {
  const struct {
    const char* now;
    std::int64_t index;
  } rows[] = {
      {"2026-01-01T23:59:59Z", 1}, {"2026-01-02T00:00:00Z", 2},  {"2026-05-19T12:00:00Z", 139},
      {"2026-05-20T12:00:00Z", 0}, {"2028-12-31T12:00:00Z", 86}, {"1969-12-31T12:00:00Z", 85},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(thoughtIndexToday(platformAt({.now = row.now}, ""), count), row.index) << row.now;
  }
}

TEST(ThoughtOfTheDay, FollowsTheDayOfTheZoneAndNoOtherCalendar) {
  const struct {
    const char* timeZone;
    std::int64_t index;
  } rows[] = {{"UTC", 1}, {"Pacific/Kiritimati", 2}, {"Pacific/Pago_Pago", 85}};
  for (const auto& row : rows) {
    for (const char* locale : {"en_US", "th_TH", "fa_IR", "ar_SA", "he_IL", "am_ET@calendar=ethiopic"}) {
      const auto platform = platformAt({.now = "2026-01-01T10:30:00Z", .timeZone = row.timeZone, .locale = locale}, "");
      EXPECT_EQ(thoughtIndexToday(platform, count), row.index) << row.timeZone << ", " << locale;
    }
  }
}

TEST(ThoughtOfTheDay, IsAnyWhereTheDayHasNoPlace) {
  std::uint64_t bits = 0;
  const auto counting = [&] { return bits++; };
  std::multiset<std::int64_t> drawn;
  for (std::size_t i = 0; i <= count; ++i) drawn.insert(thoughtIndex(std::nullopt, count, counting));
  EXPECT_EQ(drawn.count(0), 2U) << "0 and the count";
  for (std::int64_t index = 1; index < std::int64_t{count}; ++index) EXPECT_EQ(drawn.count(index), 1U) << index;
  EXPECT_EQ(bits, count + 1) << "asked once each time";
  EXPECT_EQ(thoughtIndex(std::nullopt, 1, [] { return UINT64_MAX; }), 0);
  EXPECT_EQ(thoughtIndex(7, count, [] { return std::uint64_t{9}; }), 7) << "no chance where there is a day";
}

TEST(ThoughtOfTheDayDeathTest, StopsWithoutAnyText) {
  EXPECT_EXIT(thoughtIndexToday(platformAt({}, ""), 0), testing::ExitedWithCode(70), "there are no sayings");
}

}  // namespace
}  // namespace mirune
