#include "timelines/color_offset.hpp"

#include <gtest/gtest.h>

#include "planner.hpp"

namespace mirune {
namespace {

TEST(ColorOffset, MakesTheFirstDaysBadgeTheSecond) {
  const struct {
    std::int64_t ordinal;
    std::int64_t offset;
  } rows[] = {{1, 1}, {2, 104}, {3, 103}, {103, 3}, {104, 2}, {105, 1}, {106, 104}, {208, 2}, {365, 53}, {366, 52}};
  for (const auto& row : rows) {
    EXPECT_EQ(colorOffsetFor(row.ordinal), row.offset) << row.ordinal;
    EXPECT_EQ((row.ordinal + row.offset) % 104, 2) << row.ordinal;
  }
}

TEST(ColorOffset, IsStoredOnceAndKept) {
  Planner planner;
  EXPECT_EQ(fixedColorOffset(planner.at({.now = "2026-01-01T08:00:00Z"})), 1);
  const std::string bytes = planner.settingsBytes();
  EXPECT_EQ(fixedColorOffset(planner.at({.now = "2026-04-14T08:00:00Z"})), 1) << "on a later day";
  EXPECT_EQ(planner.settingsBytes(), bytes);
}

TEST(ColorOffset, IsTheStoredOneWhereItIsFixed) {
  const struct {
    nlohmann::json settings;
    std::int64_t offset;
  } rows[] = {
      {{{"color_calendar_offset_set", true}, {"color_calendar_offset", -7}}, -7},
      {{{"color_calendar_offset_set", true}}, 0},
      {{{"color_calendar_offset_set", 1}, {"color_calendar_offset", 9}}, 9},
      {{{"color_calendar_offset_set", false}, {"color_calendar_offset", 9}}, 1},
      {{{"color_calendar_offset", 9}}, 1},
  };
  for (const auto& row : rows) {
    Planner planner;
    planner.writeSettings(row.settings);
    EXPECT_EQ(fixedColorOffset(planner.at({.now = "2026-01-01T08:00:00Z"})), row.offset) << row.settings;
  }
}

TEST(ColorOffset, IsWorkedOutButNotStoredWithoutSettings) {
  Planner planner;
  support::writeBytes(planner.folder() / support::suitePath, "damaged");
  EXPECT_EQ(fixedColorOffset(planner.at({.now = "2026-01-01T08:00:00Z"})), 1);
  EXPECT_EQ(planner.settingsBytes(), "damaged");
  EXPECT_EQ(fixedColorOffset(planner.at({.now = "2026-01-02T08:00:00Z"})), 104) << "of that day again";

  EXPECT_EQ(fixedColorOffset(platformAt({.now = "2026-01-01T08:00:00Z"}, planner.folder() / "missing")), 1);
  EXPECT_FALSE(std::filesystem::exists(planner.folder() / "missing")) << "no container is made";
}

TEST(ColorOffsetDeathTest, StopsWhereABadgesNumberIsOutOfRange) {
  const foundation::Calendar calendar;
  const auto newYear = moment("2026-01-01T08:00:00Z");
  EXPECT_EQ(badgeNumber(INT64_MAX - 1, calendar, newYear), INT64_MAX);
  EXPECT_EXIT(badgeNumber(INT64_MAX, calendar, newYear), testing::ExitedWithCode(70), "out of range");
}

}  // namespace
}  // namespace mirune
