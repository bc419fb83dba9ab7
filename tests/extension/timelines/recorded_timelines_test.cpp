// Every recorded container, built as the platform's own library built it.

#include <gtest/gtest.h>

#include "planner.hpp"
#include "shared/settings.hpp"
#include "timelines/calendar_entries.hpp"
#include "timelines/entry_coding.hpp"
#include "timelines/event_entries.hpp"
#include "timelines/mood_entries.hpp"
#include "timelines/providers.hpp"
#include "timelines/quote_entries.hpp"
#include "timelines/task_entries.hpp"
#include "timelines/task_event_entries.hpp"
#include "timelines/thought_of_the_day.hpp"

namespace mirune {
namespace {

using support::asRecorded;
using support::asRecordedMoods;
using support::differences;
using support::withTimesOf;

template <class Entry>
nlohmann::json jsonOf(const std::vector<Entry>& entries) {
  nlohmann::json json = nlohmann::json::array();
  for (const Entry& entry : entries) json.push_back(nlohmann::json(foundation::JSON(entry)));
  return json;
}

TEST(RecordedTimelines, AreBuiltAlike) {
  for (const std::string& name : support::recordedTimelines()) {
    SCOPED_TRACE(name);
    const support::RecordedContainer recorded(name);
    const uikit::Platform platform = platformAt(
        {.now = recorded.now, .timeZone = recorded.timeZone, .locale = recorded.locale}, recorded.folder.path());
    const auto& expected = recorded.expected;

    EXPECT_EQ(differences(asRecorded(jsonOf(taskEntries(platform)), "tasks"), expected.at("tasks")), "") << "tasks";
    EXPECT_EQ(differences(asRecorded(jsonOf(habitEntries(platform)), "habits"), expected.at("habits")), "") << "habits";
    const auto events = asRecorded(jsonOf(eventEntries(platform)), "events");
    EXPECT_EQ(differences(events, withTimesOf(events, expected.at("events"), recorded.locale)), "") << "events";
    EXPECT_EQ(differences(asRecorded(jsonOf(taskEventEntries(platform)), "combined"), expected.at("combined")), "")
        << "combined";
    EXPECT_EQ(differences(jsonOf(calendarEntries(platform)), expected.at("calendar")), "") << "calendar";

    EXPECT_EQ(differences(asRecordedMoods(jsonOf(moodEntries(platform))), expected.at("moods")), "") << "moods";

    auto quoteDates = nlohmann::json::array();
    for (const SimpleEntry& entry : quoteEntries(platform)) {
      quoteDates.push_back(foundation::formatMoment(entry.date));
    }
    EXPECT_EQ(differences(quoteDates, expected.at("quote").at("dates")), "") << "quote";
    constexpr std::size_t thoughts = 140;
    EXPECT_EQ(thoughtIndexToday(platform, thoughts), expected.at("quote").at("index"));

    EXPECT_EQ(MoodProvider::policy(platform).json().at("after"), expected.at("reload").get<std::string>());
    EXPECT_EQ(foundation::dayKey(platform.now, platform.calendar.timeZone()), expected.at("key"));
    const auto settings = sharedSettings(platform);
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->integer(settingsKey::colorOffset), expected.at("offset"));
    EXPECT_TRUE(settings->boolean(settingsKey::isColorOffsetSet));
  }
}

}  // namespace
}  // namespace mirune
