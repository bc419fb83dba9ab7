// What timelines promise, in any zone and at any moment.

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "planner.hpp"
#include "timelines/calendar_entries.hpp"
#include "timelines/event_entries.hpp"
#include "timelines/mood_entries.hpp"
#include "timelines/quote_entries.hpp"
#include "timelines/task_entries.hpp"
#include "timelines/task_event_entries.hpp"

namespace mirune {
namespace {

using foundation::CalendarComponent;
using foundation::Date;
using std::chrono::hours;

/// The names of all zones that the system knows.
std::vector<std::string> zoneNames() {
  const std::filesystem::path folder = "/usr/share/zoneinfo";
  std::vector<std::string> names;
  for (const auto& file : std::filesystem::recursive_directory_iterator(folder)) {
    const std::string name = file.path().lexically_relative(folder);
    const bool isVariant = name.starts_with("posix") || name.starts_with("right") || name == "localtime";
    if (!isVariant && file.is_regular_file() && support::readBytes(file.path()).starts_with("TZif")) {
      names.push_back(name);
    }
  }
  std::ranges::sort(names);
  return names;
}

std::string keyOf(Date date, const uikit::Platform& platform) {
  return foundation::dayKey(date, platform.calendar.timeZone());
}

/// The keys of so many days of the civil calendar from that one on.
std::vector<std::string> keysFrom(const std::string& first, int count) {
  int year = 0;
  int month = 0;
  int day = 0;
  std::sscanf(first.c_str(), "%d/%d/%d", &year, &month, &day);
  const auto start = std::chrono::sys_days(std::chrono::year(year) / std::chrono::month(static_cast<unsigned>(month)) /
                                           static_cast<unsigned>(day));
  std::vector<std::string> keys;
  for (int i = 0; i < count; ++i) keys.push_back(foundation::dayKey(start + std::chrono::days(i), {}));
  return keys;
}

/// Gives each of the days a task and a habit of its own, and some events.
void fill(const Planner& planner, const uikit::Platform& platform, const std::vector<std::string>& days,
          std::mt19937& random) {
  nlohmann::json tasks;
  nlohmann::json habits;
  nlohmann::json events;
  const auto clock = [&] {  // well within the day
    return foundation::formatMoment(platform.calendar.startOfDay(platform.now) + hours(3) +
                                    std::chrono::minutes(random() % 1140));
  };
  for (const std::string& day : days) {
    nlohmann::json task = item(1);
    nlohmann::json habit = item(2, 2);
    task["title"] = habit["title"] = day;
    tasks[day] = nlohmann::json::array({task});
    habits[day] = nlohmann::json::array({habit});
    events[day] = nlohmann::json::array();
    for (auto count = random() % 4; count > 0; --count) {
      nlohmann::json event = item(3, 3);
      event["title"] = day;
      event["starttime"] = clock();
      event["endtime"] = clock();
      event["allday"] = random() % 8 == 0;
      events[day].push_back(event);
    }
  }
  planner.write("tasks.json", tasks);
  planner.write("habits.json", habits);
  planner.write("events.json", events);
}

/// One for each of the days, which begin when it does.
template <class Entry>
void expectOnePerDay(const std::vector<Entry>& entries, const std::vector<std::string>& days,
                     const uikit::Platform& platform) {
  ASSERT_EQ(entries.size(), days.size());
  for (std::size_t i = 0; i < days.size(); ++i) {
    EXPECT_EQ(keyOf(entries[i].date, platform), days[i]);
    // An hour late where today's midnight is, for clocks that are put forth at midnight.
    EXPECT_LE(entries[i].date - platform.calendar.startOfDay(entries[i].date), hours(1));
  }
  EXPECT_EQ(entries[0].date, platform.calendar.startOfDay(platform.now));
}

void expectListsOfTheirDays(const std::vector<TaskEntry>& entries, const std::vector<std::string>& days,
                            const uikit::Platform& platform) {
  expectOnePerDay(entries, days, platform);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    ASSERT_EQ(entries[i].data.size(), 1U);
    EXPECT_EQ(entries[i].data[0].title, days[i]);
  }
}

/// Day by day one at the day's start and one at each moment at which an event begins or ends, with what is not over.
void expectMomentsOfEvents(const std::vector<EventEntry>& entries, const std::vector<TaskEntry>& daily,
                           const std::vector<std::string>& days) {
  auto entry = entries.begin();
  for (std::size_t i = 0; i < days.size(); ++i) {
    ASSERT_NE(entry, entries.end());
    ASSERT_EQ(entry->date, daily[i].date);
    const EventList all = entry->data;
    std::set<Date> wanted = {entry->date};
    for (const EventWidgetInner& event : all) wanted.insert({*event.starttime, *event.endtime});
    std::set<Date> met;
    for (; entry != entries.end() && met.size() < wanted.size(); ++entry) {
      EXPECT_TRUE(met.insert(entry->date).second) << "twice";
      const auto isLeft = [&](const auto& event) { return event.allday || *event.endtime > entry->date; };
      EXPECT_EQ(std::ranges::distance(entry->data), std::ranges::count_if(all, isLeft));
      for (const EventWidgetInner& event : entry->data) EXPECT_TRUE(isLeft(event) && event.title == days[i]);
    }
    EXPECT_EQ(met, wanted);
  }
  EXPECT_EQ(entry, entries.end());
}

void expectMonthsAndDays(const std::vector<CalendarEntry>& entries, const std::vector<std::string>& days,
                         const uikit::Platform& platform) {
  ASSERT_EQ(entries.size(), 5U);
  EXPECT_EQ(entries[0].date, platform.now);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    EXPECT_EQ(keyOf(entries[i].date, platform), days[i]);
    EXPECT_EQ(entries[i].today_date, platform.calendar.startOfDay(entries[i].date));
    EXPECT_EQ(keyOf(entries[i].month_date, platform), days[i].substr(0, 8) + "01");
  }
}

void expectMoods(const std::vector<MoodEntry>& entries, const uikit::Platform& platform) {
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].date, platform.now);
  const std::string today = keyOf(platform.now, platform);
  const auto numberOf = [](const std::string& key) { return std::to_string(std::atoi(key.c_str() + 8)); };
  std::vector<std::string> strip;
  for (const auto& day : entries[0].data) strip.push_back(day.text);
  std::vector<std::string> month;
  for (const auto& day : entries[0].monthdata) month.push_back(day.text);

  const auto days = keysFrom(today.substr(0, 8) + "01", 31);
  std::vector<std::string> wanted;
  for (const std::string& day : days) {
    if (day.starts_with(today.substr(0, 8))) wanted.push_back(numberOf(day));
  }
  EXPECT_EQ(month, wanted);
  ASSERT_EQ(strip.size(), 6U);
  EXPECT_EQ(strip.back(), numberOf(today));
}

/// In the order of time, at every moment of either side.
void expectBothSides(const std::vector<TaskEventEntry>& entries, const std::vector<TaskEntry>& tasks,
                     const std::vector<EventEntry>& events) {
  std::set<Date> wanted;
  for (const auto& each : tasks) wanted.insert(each.date);
  for (const auto& each : events) wanted.insert(each.date);
  EXPECT_TRUE(std::ranges::is_sorted(entries, {}, &TaskEventEntry::date));
  std::set<Date> met;
  for (const auto& each : entries) met.insert(each.date);
  EXPECT_EQ(met, wanted);
}

TEST(Timelines, KeepTheirPromisesInAnyZoneAtAnyMoment) {
  const auto zones = zoneNames();
  ASSERT_GT(zones.size(), 300U);
  std::mt19937 random(20261121);
  for (int round = 0; round < 500 && !HasFailure(); ++round) {
    const auto& zone = zones[random() % zones.size()];
    const Date now =
        std::chrono::sys_days(std::chrono::year(1970) / 1 / 1) + std::chrono::seconds(random() % 2'200'000'000);
    SCOPED_TRACE(zone + " at " + foundation::formatMoment(now));
    Planner planner;
    const auto platform = planner.at({.now = foundation::formatMoment(now), .timeZone = zone});
    const auto days = keysFrom(keyOf(now, platform), 15);
    fill(planner, platform, days, random);

    const auto tasks = taskEntries(platform);
    expectListsOfTheirDays(tasks, days, platform);
    expectListsOfTheirDays(habitEntries(platform), days, platform);
    const auto events = eventEntries(platform);
    expectMomentsOfEvents(events, tasks, days);
    expectBothSides(taskEventEntries(platform), tasks, events);
    expectOnePerDay(quoteEntries(platform), keysFrom(days[0], 30), platform);
    expectMonthsAndDays(calendarEntries(platform), days, platform);
    expectMoods(moodEntries(platform), platform);
  }
}

}  // namespace
}  // namespace mirune
