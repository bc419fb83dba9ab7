#include "timelines/providers.hpp"

#include <gtest/gtest.h>

#include "planner.hpp"

namespace mirune {
namespace {

constexpr const char* now = "2026-11-21T08:00:00Z";

TEST(Providers, HaveAnEntryToFallBackOn) {
  Planner planner;
  const auto platform = planner.platform();
  const TaskEntry tasks{.date = moment(now), .name = "Tasks"};
  const EventEntry events{.date = moment(now), .name = "Events"};

  EXPECT_EQ(MoodProvider::fallback(platform), (MoodEntry{.date = moment(now), .text = "Moods", .day = 1}));
  EXPECT_EQ(TaskProvider::fallback(platform), tasks);
  EXPECT_EQ(EventProvider::fallback(platform), events);
  EXPECT_EQ(TaskAndEventProvider::fallback(platform),
            (TaskEventEntry{.date = moment(now), .taskEntry = tasks, .eventEntry = events}));
  EXPECT_EQ(HabitProvider::fallback(platform), (TaskEntry{.date = moment(now), .name = "Habits"}));
  EXPECT_EQ(CalendarProvider::fallback(platform), (CalendarEntry{.date = moment(now),
                                                                 .month_date = moment("2026-11-01T00:00:00Z"),
                                                                 .today_date = moment("2026-11-21T00:00:00Z")}));
}

TEST(Providers, ShowTheFirstRealEntryInPlaceholderAndSnapshot) {
  Planner planner;
  planner.write("tasks.json", {{"2026/11/21", {item(1)}}});
  planner.write("habits.json", {{"2026/11/21", {item(2, 2), item(3, 2)}}});
  const auto platform = planner.platform();
  EXPECT_EQ(TaskProvider().placeholder(platform), TaskProvider().timeline(platform).entries.at(0));
  EXPECT_EQ(TaskProvider().snapshot(platform).count, 1);
  EXPECT_EQ(HabitProvider().placeholder(platform).count, 2);
  EXPECT_EQ(HabitProvider().snapshot(platform).name, "Habits");
}

}  // namespace
}  // namespace mirune
