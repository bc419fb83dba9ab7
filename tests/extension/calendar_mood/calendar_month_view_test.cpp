#include "calendar_mood/calendar_month_view.hpp"

#include <gtest/gtest.h>

#include <map>

#include "drawing.hpp"
#include "support/recorded_container.hpp"
#include "timelines/calendar_entries.hpp"

namespace mirune {
namespace {

using nlohmann::json;

rendering::Scene sceneAt(const Situation& situation, swiftui::Size size = {.width = 158, .height = 158}) {
  const uikit::Platform platform = platformAt(situation, "nowhere");
  return sceneOfView(CalendarMonthView{.entry = calendarEntry(platform.calendar, platform.now)}, platform, size);
}

std::vector<json> circlesOf(const rendering::Scene& scene) {
  return having(drawnBy(scene), "shape", "circle");
}

double middleOf(const json& frame, std::size_t axis) {
  return frame.at(axis).get<double>() + frame.at(axis + 2).get<double>() / 2;
}

TEST(CalendarMonthView, ShowsTheRecordedGrids) {
  int compared = 0;
  for (const std::string& name : support::recordedTimelines()) {
    SCOPED_TRACE(name);
    const support::RecordedContainer recorded(name);
    if (support::hasOtherFirstWeekday(recorded.locale)) continue;
    const auto& grid = recorded.expected.at("grid");
    std::vector<std::string> numbers;
    std::string today;
    for (const auto& row : grid.at("rows")) {
      for (const auto& day : row) {
        if (!day.at("visible").get<bool>()) continue;
        numbers.push_back(day.at("day").dump());
        if (day.at("today").get<bool>()) today = numbers.back();
      }
    }

    const auto scene = sceneAt({.now = recorded.now, .timeZone = recorded.timeZone, .locale = recorded.locale},
                               {.width = 300, .height = 300});
    const auto texts = textsOf(scene);
    ASSERT_EQ(texts.size(), 1 + 7 + numbers.size());
    if (!support::hasOtherWeekdayLetters(recorded.locale)) {
      EXPECT_EQ(std::vector(texts.begin() + 1, texts.begin() + 8), grid.at("labels").get<std::vector<std::string>>());
    }
    EXPECT_EQ(std::vector(texts.begin() + 8, texts.end()), numbers);
    // A filled circle and its border, drawn before the number that they mark.
    ASSERT_EQ(circlesOf(scene).size(), 2U);
    const auto drawn = drawnBy(scene);
    const auto marker = std::ranges::find_if(drawn, [](const json& it) { return it.value("shape", "") == "circle"; });
    EXPECT_EQ((marker + 2)->at("text"), today);
    ++compared;
  }
  EXPECT_GT(compared, 20);
}

TEST(CalendarMonthView, WritesMonthAndMarker) {
  const auto scene = sceneAt({.now = "2026-11-30T08:00:00Z"});
  const json title = {{"text", "NOVEMBER"}, {"size", 11}, {"weight", "semibold"}, {"kerning", 1.5}};
  EXPECT_EQ(part(drawnBy(scene).front(), title), title);

  const auto circles = circlesOf(scene);
  ASSERT_EQ(circles.size(), 2U);
  const json fill = {{"color", "#FF2D55"}, {"opacity", 0.1}};
  EXPECT_EQ(part(circles[0], fill), fill);
  const json border = {{"color", "#E96E9E"}, {"opacity", 0.75}, {"frame", circles[0].at("frame")}};
  EXPECT_EQ(part(circles[1], border), border);
  EXPECT_EQ(circles[1].at("stroke").at("width"), 0.5);

  const auto number = having(drawnBy(scene), "text", "30").at(0);
  for (const std::size_t axis : {0U, 1U}) {
    EXPECT_NEAR(middleOf(circles[0].at("frame"), axis), middleOf(number.at("frame"), axis), 0.1);
  }
  const double cellWidth = circles[0].at("frame").at(2).get<double>() / 1.5;
  EXPECT_NEAR(cellWidth, number.at("frame").at(2).get<double>() + 0.2, 0.01) << "two digits, whatever the number";
  EXPECT_EQ(having(drawnBy(sceneAt({.now = "2026-11-02T08:00:00Z"})), "shape", "circle")[0].at("frame").at(2),
            circles[0].at("frame").at(2));
}

TEST(CalendarMonthView, MarksOnlyTheMidnightOfToday) {
  const uikit::Platform platform = platformAt({}, "nowhere");
  CalendarEntry entry = calendarEntry(platform.calendar, platform.now);
  entry.today_date += std::chrono::seconds(1);
  EXPECT_TRUE(circlesOf(sceneOfView(CalendarMonthView{.entry = entry}, platform)).empty());
  entry = calendarEntry(platform.calendar, platform.now);
  entry.month_date = moment("2026-10-01T00:00:00Z");
  EXPECT_TRUE(circlesOf(sceneOfView(CalendarMonthView{.entry = entry}, platform)).empty());
}

/// Every month of some years, which have four to six rows, on each size of the small widget: the columns stand straight
/// and apart, nothing leaves the widget.
TEST(CalendarMonthView, FitsEverySmallWidget) {
  for (const double side : {141.0, 148.0, 155.0, 158.0, 170.0}) {
    for (const char* month : {"2026-02-15", "2026-03-31", "2027-05-31", "2024-12-01", "2015-02-01"}) {
      for (const char* locale : {"en_US", "de_DE", "ar_EG"}) {
        SCOPED_TRACE(std::to_string(side) + " " + month + " " + locale);
        const auto scene =
            sceneAt({.now = month + std::string("T08:00:00Z"), .locale = locale}, {.width = side, .height = side});
        expectWithin(scene);
        std::map<int, int> columns;
        for (const json& each : drawnBy(scene)) {
          if (each.value("size", 0.0) != 9) continue;
          EXPECT_FALSE(each.contains("scale")) << each;
          ++columns[static_cast<int>(std::lround(middleOf(each.at("frame"), 0)))];
        }
        EXPECT_EQ(columns.size(), 7U);
      }
    }
  }
}

}  // namespace
}  // namespace mirune
