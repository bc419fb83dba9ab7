#include <gtest/gtest.h>

#include <cmath>

#include "calendar_mood/mood_drawing.hpp"
#include "timelines/calendar_entries.hpp"
#include "widget_scene.hpp"

// Where things stand in three widgets on a screen of 390 by 844 points at 2x, against places worked out by hand from
// the rules of layout: paddings, spacings and line boxes of the platform. Only what depends on no letter's width is
// compared.

namespace mirune {
namespace {

using nlohmann::json;
using swiftui::WidgetFamily;

constexpr double tolerance = 0.03;

struct Place {
  const char* what;  ///< a text, the name of a picture, or a shape
  int number;        ///< of those that are so called, from 0
  double x, y;       ///< NAN for what letters decide
  double width, height;
};

void expectPlaces(const rendering::Scene& scene, const std::vector<Place>& places) {
  const auto drawn = drawnBy(scene);
  for (const Place& place : places) {
    std::vector<json> called;
    for (const char* member : {"text", "name", "shape"}) {
      for (const json& each : having(drawn, member, place.what)) called.push_back(each.at("frame"));
    }
    ASSERT_LT(static_cast<std::size_t>(place.number), called.size()) << place.what;
    const json& frame = called[static_cast<std::size_t>(place.number)];
    const double expected[] = {place.x, place.y, place.width, place.height};
    for (std::size_t i = 0; i < 4; ++i) {
      if (std::isnan(expected[i])) continue;
      EXPECT_NEAR(frame.at(i).get<double>(), expected[i], tolerance)
          << place.what << " " << place.number << ", " << "xywh"[i];
    }
  }
}

TEST(MeasuredPositions, OfTasks) {
  TaskEntry entry{.date = moment("2026-11-21T00:00:00Z"), .count = 5, .totalTaskCount = 5, .name = "Tasks"};
  for (int number = 1; number <= 5; ++number) {
    entry.data.push_back({.id = foundation::UUID::parse(idNumber(number)).value(), .title = std::to_string(number)});
  }
  // Padding 12 above and 16 beside. The header is as high as the badge: 22, the line of "13" in 15 points of its font.
  // It ends at 34, the first row of 27 begins 3 below; a box is 16 high, a line of 14 points 17, both in its middle.
  // Title: 16 (padding) + 16 (box) + 4 + 2.
  expectPlaces(widgetScene("tasks", foundation::JSON(entry), WidgetFamily::systemSmall, platformAt({}, "")),
               {{"paper1new_widget", 0, 0, 0, 158, 158},
                {"TASKS", 0, 16, 15, NAN, 16},
                {"roundedRectangle", 0, 16, 42.5, 16, 16},
                {"1", 0, 38, 42, NAN, 17},
                {"roundedRectangle", 1, 16, 69.5, 16, 16},
                {"2", 0, 38, 69, NAN, 17},
                {"roundedRectangle", 2, 16, 96.5, 16, 16},
                {"3", 0, 38, 96, NAN, 17},
                {"+2 more", 0, 16, 121, NAN, 12}});
}

TEST(MeasuredPositions, OfTheMoodCheckIn) {
  MoodEntry entry = moodEntryOf(30, someMood());
  entry.data[2].moodData.id = "";
  // Six cells with five gaps of 7 share 338 - 2 * 16: 45 1/6 each. Upwards from 16 above the bottom: a line of 9 points
  // (11), the platform's distance of a text from what is above it (3 2/3), a square. The cat stands 4 inside; an empty
  // day's circle 5 inside, with a plus of 11 in its middle.
  constexpr double cell = 306.0 / 6 - 35.0 / 6;
  constexpr double top = 158 - 16 - 11 - 11.0 / 3 - cell;
  const auto left = [](int index) { return 16 + index * (cell + 7); };
  expectPlaces(moodScene("mood", entry, WidgetFamily::systemMedium),
               {{"paper1new_widget", 0, 0, 0, 338, 158},
                {"How are you feeling today?", 0, 16, NAN, NAN, NAN},
                {"moodbgnew", 0, left(0), top, cell, cell},
                {"cat-circle_calm", 0, left(0) + 4, top + 4, cell - 8, cell - 8},
                {"moodbgnew", 1, left(1), top, cell, cell},
                {"circle", 0, left(2) + 5, top + 5, cell - 10, cell - 10},
                {"plus", 0, left(2) + cell / 2 - 5.5, top + cell / 2 - 5.5, 11, 11},
                {"moodbgnew", 4, left(5), top, cell, cell},
                {"16", 0, NAN, 131, NAN, 11},
                {"Today", 0, NAN, 131, NAN, 11}});
}

TEST(MeasuredPositions, OfTheCalendar) {
  const uikit::Platform platform = platformAt({.now = "2026-11-21T08:00:00Z"}, "nowhere");
  const CalendarEntry entry = calendarEntry(platform.calendar, platform.now);
  const auto scene = widgetScene("calendar", foundation::JSON(entry), WidgetFamily::systemSmall, platform);
  // Padding 10 and 10 around the title, a line of 11 points: 13.5. The grid begins at 43.5 with padding 1. Label row:
  // the sizing text of 9 points (11) and 0.05, the label's own line of 8 points (10) in its middle. Rows stand the
  // platform's distance of two texts from a row of them apart: 3.67 for 9 points at 2x.
  constexpr double row = 11.05 + 3.67;
  const auto numberAt = [&](int week) { return 44.5 + (week + 1) * row + 0.025; };
  expectPlaces(scene, {{"NOVEMBER", 0, NAN, 20, NAN, 13.5},
                       {"S", 0, NAN, 45, NAN, 10},
                       {"W", 0, NAN, 45, NAN, 10},
                       {"1", 0, NAN, numberAt(0), NAN, 11},
                       {"14", 0, NAN, numberAt(1), NAN, 11},
                       {"29", 0, NAN, numberAt(4), NAN, 11}});

  // Seven columns of one width, 8 apart, the fourth in the middle.
  const auto drawn = drawnBy(scene);
  const auto middleOf = [&](const char* text) {
    const json frame = having(drawn, "text", text).at(0).at("frame");
    return frame.at(0).get<double>() + frame.at(2).get<double>() / 2;
  };
  const json marker = having(drawn, "shape", "circle").at(0).at("frame");
  const double cell = marker.at(2).get<double>() / 1.5;
  EXPECT_NEAR(middleOf("18"), 79, 0.3) << "letters stand on whole pixels";
  EXPECT_NEAR(middleOf("21") - middleOf("15"), 6 * (cell + 8), 0.6);
  EXPECT_NEAR(marker.at(2).get<double>(), marker.at(3).get<double>(), tolerance);
  EXPECT_NEAR(marker.at(1).get<double>() + marker.at(3).get<double>() / 2, numberAt(2) + 5.5, 0.1);
}

}  // namespace
}  // namespace mirune
