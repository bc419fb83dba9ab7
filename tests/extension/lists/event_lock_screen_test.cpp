#include "lists/event_lock_screen.hpp"

#include <gtest/gtest.h>

#include "drawing.hpp"

namespace mirune {
namespace {

using nlohmann::json;
using Texts = std::vector<std::string>;

constexpr swiftui::Size slot{.width = 160, .height = 72};

EventEntry entryWith(const EventWidgetInner& first, int count) {
  std::vector<EventWidgetInner> events{first};
  for (int i = 1; i < count; ++i) events.push_back({.title = "later"});
  return {.data = EventList(std::move(events)), .count = count, .name = "Events"};
}

const EventWidgetInner timed{
    .title = "Dentist", .color = uikit::RGBA{.red = 1, .green = 0, .blue = 0}, .time = "9:00 - 9:30"};
const EventWidgetInner allDay{.title = "Fair", .time = "0:00 - 0:00", .allday = true};

TEST(EventRectangularView, ShowsTheFirstEventAndHowManyMore) {
  const struct {
    EventEntry entry;
    Texts texts;
  } rows[] = {
      {entryWith(timed, 1), {"Dentist", "9:00 - 9:30"}},
      {entryWith(timed, 3), {"Dentist", "9:00 - 9:30", "+2 more"}},
      {entryWith(allDay, 2), {"Fair", "All Day", "+1 more"}},
      {{.name = "Events"}, {"No more events today"}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(textsOf(sceneOfView(EventRectangularView{.entry = row.entry}, platformAt({}, ""), slot)), row.texts);
  }
}

TEST(EventRectangularView, IsDrawnAsTheSlotWants) {
  const auto drawn = drawnBy(sceneOfView(EventRectangularView{.entry = entryWith(timed, 3)}, platformAt({}, ""), slot));
  ASSERT_EQ(drawn.size(), 4U);
  const json bar = {{"shape", "roundedRectangle"}, {"cornerRadius", 1}, {"fill", "#FF0000"}};
  const json title = {{"size", 16}, {"weight", "medium"}};
  const json time = {{"size", 14}, {"weight", "regular"}, {"opacity", 0.9}};
  const json footer = {{"size", 11}, {"weight", "regular"}, {"design", "rounded"}, {"opacity", 0.8}};
  const json likes[] = {bar, title, time, footer};
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(part(drawn[i], likes[i]), likes[i]);

  const json& frame = drawn[0].at("frame");
  EXPECT_EQ(frame.at(0), 0);
  EXPECT_EQ(frame.at(2), 2);
  EXPECT_EQ(drawn[1].at("frame").at(0), 9);
  EXPECT_EQ(frame.at(1), drawn[1].at("frame").at(1).get<double>() + 2);
  EXPECT_EQ(frame.at(1).get<double>() + frame.at(3).get<double>(),
            drawn[2].at("frame").at(1).get<double>() + drawn[2].at("frame").at(3).get<double>() - 2);
}

TEST(EventInlineView, WritesOneLine) {
  EventWidgetInner odd = timed;
  odd.time = "soon";
  const struct {
    EventEntry entry;
    const char* text;
  } rows[] = {
      {entryWith(timed, 2), " 9:00 - Dentist"},
      {entryWith(allDay, 1), " Fair"},
      {entryWith(odd, 1), " soon - Dentist"},
      {{.name = "Events"}, " No more events"},
  };
  for (const auto& row : rows) {
    const auto scene =
        sceneOfView(EventInlineView{.entry = row.entry}, platformAt({}, ""), {.width = 234, .height = 26});
    EXPECT_EQ(textsOf(scene), Texts{row.text});
    EXPECT_EQ(having(drawnBy(scene), "name", "calendar_today").size(), 1U);
  }
}

TEST(EventLockScreenDeathTest, AnEntryThatCountsEventsHasThem) {
  const EventEntry broken{.count = 1};
  const auto platform = platformAt({}, "");
  EXPECT_EXIT(sceneOfView(EventInlineView{.entry = broken}, platform), testing::ExitedWithCode(70), "has none");
  EXPECT_EXIT(sceneOfView(EventRectangularView{.entry = broken}, platform), testing::ExitedWithCode(70), "has none");
}

}  // namespace
}  // namespace mirune
