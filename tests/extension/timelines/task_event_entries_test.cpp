#include "timelines/task_event_entries.hpp"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

#include "planner.hpp"

namespace mirune {
namespace {

using foundation::Date;

Date minute(std::int64_t number) {
  return Date(std::chrono::minutes(number));
}

const TaskEventEntry fallback{.taskEntry = {.name = "no tasks"}, .eventEntry = {.name = "no events"}};

/// "10 t1 e-": the minute and which entry of each side stands, "-" for the fallback.
std::vector<std::string> linesOf(const std::vector<TaskEventEntry>& entries) {
  std::vector<std::string> lines;
  for (const TaskEventEntry& entry : entries) {
    const auto side = [](const auto& it) { return it.name.starts_with("no ") ? "-" : std::to_string(it.image); };
    const auto at = std::chrono::floor<std::chrono::minutes>(entry.date).time_since_epoch().count();
    lines.push_back(std::to_string(at) + " t" + side(entry.taskEntry) + " e" + side(entry.eventEntry));
  }
  return lines;
}

template <class Entry>
std::vector<Entry> entriesAt(const std::vector<int>& minutes) {
  std::vector<Entry> entries;
  for (const int at : minutes) {
    entries.push_back({.date = minute(at), .image = static_cast<std::int64_t>(entries.size()) + 1, .name = "some"});
  }
  return entries;
}

TEST(TaskEventEntries, PairWhatBothSidesShow) {
  const struct {
    const char* name;
    std::vector<int> tasks;
    std::vector<int> events;
    std::vector<std::string> lines;
  } rows[] = {
      {"equal moments make one entry", {0, 10}, {0, 10}, {"0 t1 e1", "10 t2 e2"}},
      {"each change makes one", {0, 20}, {0, 5, 7, 20}, {"0 t1 e1", "5 t1 e2", "7 t1 e3", "20 t2 e4"}},
      {"before the first there is the fallback", {10}, {5, 12}, {"5 t- e1", "10 t1 e1", "12 t1 e2"}},
      {"what is left pairs with the last", {0, 10, 20}, {5}, {"0 t1 e-", "5 t1 e1", "10 t2 e1", "20 t3 e1"}},
      {"one side empty", {0, 10}, {}, {"0 t1 e-", "10 t2 e-"}},
      {"the other side empty", {}, {3}, {"3 t- e1"}},
      {"both empty", {}, {}, {}},
      {"sorted first", {10, 0}, {10, 5, 0}, {"0 t2 e3", "5 t2 e2", "10 t1 e1"}},
      {"equal moments of a side stay in order, each with one of the other side",
       {0},
       {0, 0, 0},
       {"0 t1 e1", "0 t1 e2", "0 t1 e3"}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(linesOf(merged(entriesAt<TaskEntry>(row.tasks), entriesAt<EventEntry>(row.events), fallback)), row.lines)
        << row.name;
  }
}

/// Every moment of either side with the last of each that has come by then, found in the plainest way.
std::vector<std::string> pairsOf(const std::vector<TaskEntry>& tasks, const std::vector<EventEntry>& events) {
  std::vector<TaskEventEntry> pairs;
  for (int at = 0; at < 30; ++at) {
    TaskEventEntry pair = fallback;
    pair.date = minute(at);
    bool isMoment = false;
    for (int past = 0; past <= at; ++past) {
      for (const TaskEntry& each : tasks) {
        if (each.date == minute(past)) pair.taskEntry = each, isMoment |= past == at;
      }
      for (const EventEntry& each : events) {
        if (each.date == minute(past)) pair.eventEntry = each, isMoment |= past == at;
      }
    }
    if (isMoment) pairs.push_back(pair);
  }
  return linesOf(pairs);
}

TEST(TaskEventEntries, PairWhatASearchFinds) {
  std::mt19937 random(20261121);
  std::vector<int> minutes(30);
  std::iota(minutes.begin(), minutes.end(), 0);
  const auto some = [&] {
    std::ranges::shuffle(minutes, random);
    return std::vector(minutes.begin(), minutes.begin() + static_cast<std::ptrdiff_t>(random() % 20));
  };
  for (int round = 0; round < 1000; ++round) {
    const auto tasks = entriesAt<TaskEntry>(some());
    const auto events = entriesAt<EventEntry>(some());
    ASSERT_EQ(linesOf(merged(tasks, events, fallback)), pairsOf(tasks, events)) << "round " << round;
  }
}

}  // namespace
}  // namespace mirune
