#include "timelines/task_entries.hpp"

#include <gtest/gtest.h>

#include "planner.hpp"
#include "shared/override_state.hpp"

namespace mirune {
namespace {

using nlohmann::json;

constexpr const char* today = "2026/11/21";
constexpr const char* someMoment = "2026-11-21T08:00:00Z";

json ticked(const std::string& id) {
  return {{id, someMoment}};
}

std::string lowercase(std::string text) {
  for (char& letter : text) letter = static_cast<char>(std::tolower(letter));
  return text;
}

json withID(json changed, const std::string& id) {
  changed["id"] = id;
  return changed;
}

/// What a day's entry says of its items.
struct Day {
  std::vector<std::string> open = {};
  std::int64_t total = 0;
  std::int64_t itemtype = 0;
  friend bool operator==(const Day&, const Day&) = default;
  friend void PrintTo(const Day& day, std::ostream* out) {
    *out << json(day.open).dump() << " of " << day.total << ", itemtype " << day.itemtype;
  }
};

Day dayOf(const TaskEntry& entry) {
  Day day{.total = entry.totalTaskCount, .itemtype = entry.itemtype};
  for (const TaskWidgetInner& each : entry.data) {
    day.open.push_back(each.title);
    EXPECT_EQ(each.date, entry.date);
    EXPECT_FALSE(each.isOn);
  }
  EXPECT_EQ(entry.count, static_cast<std::int64_t>(entry.data.size()));
  return day;
}

struct Files {
  json tasks = nullptr;
  json pending = nullptr;
  json habits = nullptr;
  json overrides = nullptr;

  void writeTo(const Planner& planner) const {
    if (!tasks.is_null()) planner.write("tasks.json", tasks);
    if (!pending.is_null()) planner.write("pendingtasks.json", pending);
    if (!habits.is_null()) planner.write("habits.json", habits);
    if (!overrides.is_null()) planner.write(std::string(timelineOverrideFile), overrides);
  }
};

TEST(TaskEntries, CountAndListADaysItems) {
  const struct {
    const char* what;
    Files files;
    Day tasks;
    Day habits;
  } rows[] = {
      {"nothing at all", {}, {}, {}},
      {"items of another type count nowhere",
       {.tasks = {{today, {item(1, 2), item(2, 3), item(3)}}}, .habits = {{today, {item(4), item(5, 2), item(6, 3)}}}},
       {.open = {"item 3"}, .total = 1},
       {.open = {"item 5"}, .total = 1, .itemtype = 1}},
      {"a day of nothing but other types is not empty",
       {.habits = {{today, {item(1), item(2, 3)}}}},
       {},
       {.total = 0, .itemtype = 1}},
      {"a day whose list is empty", {.habits = {{today, json::array()}}}, {}, {}},
      {"an override, whatever its date",
       {.tasks = {{today, {item(1), item(2)}}},
        .habits = {{today, {item(2, 2)}}},
        .overrides = {{idNumber(2), "2001-01-01T00:00:00Z"}}},
       {.open = {"item 1"}, .total = 2},
       {.total = 1, .itemtype = 1}},
      {"an override in lower case",
       {.tasks = {{today, {item(1), item(2)}}}, .overrides = ticked(lowercase(idNumber(1)))},
       {.open = {"item 2"}, .total = 2},
       {}},
      {"an override of an id in lower case",
       {.tasks = {{today, {withID(item(1), lowercase(idNumber(1)))}}}, .overrides = ticked(idNumber(1))},
       {.total = 1},
       {}},
      {"an override of a text that is no UUID",
       {.tasks = {{today, {withID(item(1), "milk")}}}, .overrides = ticked("milk")},
       {.total = 1},
       {}},
      {"a done item may have any id",
       {.tasks = {{today, {withID(item(1, 1, true), "milk"), withID(item(2, 2), "bread")}}}},
       {.total = 1},
       {}},
      {"overrides that do not decode count for nothing",
       {.tasks = {{today, {item(1)}}}, .overrides = {{idNumber(1), nullptr}}},
       {.open = {"item 1"}, .total = 1},
       {}},
      {"a refused file leaves the other",
       {.tasks = {{today, {{{"type", 1}}}}}, .pending = {{"tasks", {item(2)}}}},
       {.open = {"item 2"}, .total = 1},
       {}},
      {"an item that stands twice",
       {.tasks = {{today, {item(1)}}}, .pending = {{"tasks", {item(1)}}}},
       {.open = {"item 1", "item 1"}, .total = 2},
       {}},
      {"habits have no pending ones",
       {.pending = {{"tasks", {item(1, 2)}}}, .habits = {{"tasks", {item(2, 2)}}}},
       {.total = 0, .itemtype = 0},
       {}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    Planner planner;
    row.files.writeTo(planner);
    EXPECT_EQ(dayOf(taskEntries(planner.platform()).at(0)), row.tasks) << "tasks";
    EXPECT_EQ(dayOf(habitEntries(planner.platform()).at(0)), row.habits) << "habits";
  }
}

TEST(TaskEntries, KeepTheWallClockOfTodaysStart) {
  const struct {
    const char* what;
    Situation situation;
    std::vector<std::string> dates;
  } rows[] = {
      {"before a day that starts at 01:00",
       {.now = "2024-04-25T10:00:00Z", .timeZone = "Africa/Cairo"},
       {"2024-04-24T22:00:00Z", "2024-04-25T22:00:00Z", "2024-04-26T21:00:00Z", "2024-04-27T21:00:00Z"}},
      {"on a day that starts at 01:00",
       {.now = "2024-04-26T10:00:00Z", .timeZone = "Africa/Cairo"},
       {"2024-04-25T22:00:00Z", "2024-04-26T22:00:00Z", "2024-04-27T22:00:00Z"}},
      {"on a day of 25 hours",
       {.now = "2026-10-25T10:00:00Z", .timeZone = "Europe/Berlin"},
       {"2026-10-24T22:00:00Z", "2026-10-25T23:00:00Z"}},
  };
  for (const auto& row : rows) {
    Planner planner;
    const auto entries = taskEntries(planner.at(row.situation));
    for (std::size_t day = 0; day < row.dates.size(); ++day) {
      EXPECT_EQ(foundation::formatMoment(entries[day].date), row.dates[day]) << row.what << ", day " << day;
    }
  }
}

TEST(TaskEntries, LookUpTheDayInGregorianDigitsWhateverTheLocale) {
  for (const char* locale : {"fa_IR", "th_TH", "ar_SA", "ja_JP@calendar=japanese"}) {
    Planner planner;
    planner.write("tasks.json", {{today, {item(1)}}});
    EXPECT_EQ(taskEntries(planner.at({.locale = locale})).at(0).count, 1) << locale;
  }
}

TEST(TaskEntriesDeathTest, StopWhereAnOpenItemsIdIsNoUUID) {
  Planner planner;
  planner.write("tasks.json", {{today, {withID(item(1), "milk")}}});
  EXPECT_EXIT(taskEntries(planner.platform()), testing::ExitedWithCode(70), "an item's id is no UUID: 'milk'");
}

}  // namespace
}  // namespace mirune
