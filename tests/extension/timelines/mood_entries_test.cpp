#include "timelines/mood_entries.hpp"

#include <gtest/gtest.h>

#include <set>

#include "planner.hpp"

namespace mirune {
namespace {

nlohmann::json moodNamed(const std::string& name) {
  return {{"id", name},
          {"name", name},
          {"icon", "cat-circle_1"},
          {"color", "#F2B84B"},
          {"isOriginalColor", true},
          {"hasBeenDeleted", name == "deleted"}};
}

MoodEntry entryAt(Planner& planner, const std::string& now, const std::string& locale = "en_US",
                  const std::string& timeZone = "UTC") {
  const auto entries = moodEntries(planner.at({.now = now, .timeZone = timeZone, .locale = locale}));
  EXPECT_EQ(entries.size(), 1U);
  return entries.at(0);
}

std::string namesOf(const std::vector<MoodWidgetInner>& days) {
  std::string names;
  for (const MoodWidgetInner& day : days) names += (names.empty() ? "" : " ") + day.text + ":" + day.moodData.name;
  return names;
}

TEST(MoodEntries, KeepTheirDaysWhereTheClockChanges) {
  const struct {
    const char* now;
    const char* timeZone;
    std::size_t days;
  } rows[] = {{"2026-03-29T12:00:00Z", "Europe/Berlin", 31},
              {"2026-10-25T12:00:00Z", "Europe/Berlin", 31},
              {"2018-11-04T12:00:00Z", "America/Sao_Paulo", 30},  // midnight does not exist
              {"2011-12-29T12:00:00Z", "Pacific/Apia", 31}};      // a day does not exist
  for (const auto& row : rows) {
    Planner planner;
    const MoodEntry entry = entryAt(planner, row.now, "en_US", row.timeZone);
    std::set<std::string> texts;
    for (const MoodWidgetInner& day : entry.monthdata) texts.insert(day.text);
    EXPECT_EQ(texts.size(), entry.monthdata.size()) << row.timeZone << ": " << namesOf(entry.monthdata);
    EXPECT_LE(texts.size(), row.days);
    EXPECT_GE(texts.size(), row.days - 1);
  }
}

TEST(MoodEntries, KnowNoMoodWhereTheFileDoesNotDecode) {
  Planner planner;
  auto broken = moodNamed("calm");
  broken.erase("icon");
  planner.write("moods.json", {{"2026/11/20", moodNamed("happy")}, {"2026/11/21", broken}});
  const MoodEntry entry = entryAt(planner, "2026-11-21T08:00:00Z");
  const MiruneDailyMood missing{.name = "Error", .icon = "cat-circle_placeholder", .color = "ff0000"};
  std::set<foundation::UUID> ids;
  for (const auto& days : {entry.data, entry.monthdata}) {
    for (const MoodWidgetInner& day : days) {
      EXPECT_EQ(day.moodData, missing);
      ids.insert(day.id);
    }
  }
  EXPECT_EQ(ids.size(), 36U) << "each has an id of its own";
}

}  // namespace
}  // namespace mirune
