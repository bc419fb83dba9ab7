#include "timelines/entry_coding.hpp"

#include <gtest/gtest.h>

#include "planner.hpp"

namespace mirune {
namespace {

using foundation::JSON;

const foundation::UUID id = foundation::UUID::parse("AAAAAAAA-0000-4000-8000-00000000000B").value();
const foundation::Date date = moment("2026-11-21T08:00:00Z");

const TaskEntry tasks{.date = date,
                      .data = {{.id = id, .title = "Grüße \"…\"\n", .isOn = true, .date = date}},
                      .itemtype = 1,
                      .count = INT64_MAX,
                      .totalTaskCount = -1,
                      .image = INT64_MIN,
                      .name = "Tasks"};

const EventEntry events{
    .date = date,
    .data = {{.id = id, .title = "own", .color = uikit::RGBA{.red = 1, .green = 0.5, .blue = 0, .alpha = 0.25}},
             {.id = id,
              .title = "plain",
              .calid = "c",
              .time = "9:00 - 10:00",
              .allday = true,
              .starttime = date,
              .endtime = moment("2026-11-21T08:00:00.250Z")}},
    .count = 2,
    .image = 3,
    .name = "Events"};

const MoodWidgetInner mood{
    .id = id,
    .moodData = {.id = "1", .name = "Glad", .icon = "mood1", .color = "#FF8800", .isOriginalColor = true},
    .text = "21"};

template <class Entry>
void expectRoundTrip(const Entry& entry) {
  const std::string text = JSON(entry).dump();
  EXPECT_EQ(JSON::parse(text).get<Entry>(), entry) << text;
}

TEST(EntryCoding, ReadsWhatItWrites) {
  expectRoundTrip(SimpleEntry{.date = date});
  expectRoundTrip(tasks);
  expectRoundTrip(events);
  expectRoundTrip(TaskEventEntry{.date = date, .taskEntry = tasks, .eventEntry = events});
  expectRoundTrip(CalendarEntry{.date = date, .month_date = date, .today_date = moment("0001-01-01T00:00:00Z")});
  expectRoundTrip(MoodEntry{.date = date,
                            .data = {mood, {}},
                            .monthdata = {mood},
                            .monthdatadict = {{"21", mood}, {"", {}}},
                            .text = "Moods",
                            .day = 7});
}

TEST(EntryCoding, RefusesOtherRecords) {
  const auto with = [](const char* member, const JSON& value) {
    JSON json(tasks);
    json[member] = value;
    return json;
  };
  JSON short_ = JSON(tasks);
  short_.erase("image");
  for (const JSON& json :
       {JSON(), JSON::array(), JSON("label"), JSON(SimpleEntry{}), short_, with("count", "1"), with("date", "today"),
        with("data", JSON::object()), with("data", JSON::array({1})), with("name", nullptr)}) {
    EXPECT_THROW(json.get<TaskEntry>(), JSON::exception) << json;
  }
  JSON odd(events);
  odd["data"][0]["color"] = "red";
  EXPECT_THROW(odd.get<EventEntry>(), JSON::exception);
}

TEST(EntryCodingDeathTest, KnowsOneSystemColorOnly) {
  EXPECT_EXIT(JSON(EventWidgetInner{.color = uikit::SystemColor::pink}), testing::ExitedWithCode(70), "colour");
}

}  // namespace
}  // namespace mirune
