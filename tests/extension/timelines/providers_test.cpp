#include "timelines/providers.hpp"

#include <gtest/gtest.h>

#include "planner.hpp"

namespace mirune {
namespace {

using foundation::JSON;

constexpr const char* now = "2026-11-21T08:00:00Z";

/// The dates of a timeline's entries.
template <class Provider>
std::vector<std::string> datesOf(const uikit::Platform& platform) {
  std::vector<std::string> dates;
  for (const auto& entry : Provider().timeline(platform).entries) {
    dates.push_back(foundation::formatMoment(entry.date));
  }
  return dates;
}

template <class Provider>
JSON policyOf(const uikit::Platform& platform) {
  return Provider().timeline(platform).policy.json();
}

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

TEST(Providers, AskAgainAtTheEndOrAfterMidnight) {
  Planner planner;
  const auto platform = planner.platform();
  for (const JSON& policy : {policyOf<Provider>(platform), policyOf<TaskProvider>(platform),
                             policyOf<HabitProvider>(platform), policyOf<EventProvider>(platform),
                             policyOf<TaskAndEventProvider>(platform), policyOf<CalendarProvider>(platform)}) {
    EXPECT_EQ(policy, "atEnd");
  }
  const struct {
    Situation situation;
    const char* reload;
  } rows[] = {
      {{.now = now}, "2026-11-22T00:00:00Z"},
      {{.now = "2026-03-29T10:00:00Z", .timeZone = "Europe/Berlin"}, "2026-03-29T23:00:00Z"},
      {{.now = "2026-10-25T10:00:00Z", .timeZone = "Europe/Berlin"}, "2026-10-25T22:00:00Z"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(policyOf<MoodProvider>(planner.at(row.situation)), JSON::object({{"after", row.reload}}));
  }
}

TEST(QuoteProvider, HasThirtyDaysAndNeedsNoContainer) {
  const auto platform = platformAt({.now = "2026-10-20T10:00:00Z", .timeZone = "Europe/Berlin"}, "");
  const auto dates = datesOf<Provider>(platform);
  ASSERT_EQ(dates.size(), 30U);
  EXPECT_EQ(dates[0], "2026-10-19T22:00:00Z");
  EXPECT_EQ(dates[5], "2026-10-24T22:00:00Z");
  EXPECT_EQ(dates[6], "2026-10-25T23:00:00Z") << "a day of 25 hours later";
  EXPECT_EQ(dates[29], "2026-11-17T23:00:00Z");
  EXPECT_EQ(Provider().placeholder(platform).date, platform.now);
  EXPECT_EQ(Provider().snapshot(platform).date, platform.now);
}

TEST(CalendarProvider, HasNowAndTheNextFourMidnights) {
  const auto platform = platformAt({.now = "2026-04-30T12:00:00Z"}, "");
  const char* april = "2026-04-01T00:00:00Z";
  const char* may = "2026-05-01T00:00:00Z";
  const struct {
    const char* date;
    const char* month;
    const char* today;
  } rows[] = {
      {"2026-04-30T12:00:00Z", april, "2026-04-30T00:00:00Z"}, {may, may, may},
      {"2026-05-02T00:00:00Z", may, "2026-05-02T00:00:00Z"},   {"2026-05-03T00:00:00Z", may, "2026-05-03T00:00:00Z"},
      {"2026-05-04T00:00:00Z", may, "2026-05-04T00:00:00Z"},
  };
  const auto entries = CalendarProvider().timeline(platform).entries;
  ASSERT_EQ(entries.size(), std::size(rows));
  for (std::size_t index = 0; index < entries.size(); ++index) {
    const auto& row = rows[index];
    const CalendarEntry expected{
        .date = moment(row.date), .month_date = moment(row.month), .today_date = moment(row.today)};
    EXPECT_EQ(JSON(entries[index]), JSON(expected));
  }
  EXPECT_EQ(CalendarProvider().placeholder(platform), entries[0]);
}

}  // namespace
}  // namespace mirune
