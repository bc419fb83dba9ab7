#include "lists/task_lock_screen.hpp"

#include <gtest/gtest.h>

#include "timelines/entry_coding.hpp"
#include "widget_scene.hpp"
#include "widgetkit/widget_size.hpp"

namespace mirune {
namespace {

using nlohmann::json;
using swiftui::WidgetFamily;
using Texts = std::vector<std::string>;

/// A day with so many items, the first of which are open.
TaskEntry entryOf(int open, int total, std::int64_t itemtype = taskItems) {
  TaskEntry entry{.date = moment("2026-11-21T00:00:00Z"),
                  .itemtype = itemtype,
                  .count = open,
                  .totalTaskCount = total,
                  .name = itemtype == taskItems ? "Tasks" : "Habits"};
  for (int number = 1; number <= open; ++number) {
    entry.data.push_back({.id = foundation::UUID::parse(idNumber(number)).value(),
                          .title = "item " + std::to_string(number),
                          .date = entry.date});
  }
  return entry;
}

rendering::Scene sceneOf(const TaskEntry& entry, WidgetFamily family, int systemVersion = 17,
                         uikit::Screen screen = {}) {
  auto platform = platformAt({}, "");
  platform.systemVersion = systemVersion;
  platform.screen = screen;
  return widgetScene("tasks", foundation::JSON(entry), family, platform);
}

json meaningOf(const rendering::Scene& scene) {
  return json(rendering::jsonOf(scene.meaning));
}

TEST(TaskRectangular, ShowsAsManyRowsAsTheSystemVersionHasRoomFor) {
  const struct {
    int open;
    int systemVersion;
    Texts shown;
    const char* role;
  } rows[] = {
      {1, 17, {"item 1"}, "checkbox"},           {2, 17, {"item 1", "item 2"}, "checkbox"},
      {5, 17, {"item 1", "item 2"}, "checkbox"}, {5, 26, {"item 1", "item 2"}, "checkbox"},
      {2, 16, {"item 1", "item 2"}, "text"},     {5, 16, {"item 1", "item 2", "item 3"}, "text"},
  };
  for (const auto& row : rows) {
    const auto scene = sceneOf(entryOf(row.open, 7), WidgetFamily::accessoryRectangular, row.systemVersion);
    EXPECT_EQ(textsOf(scene), row.shown) << row.open << " on " << row.systemVersion;
    for (const auto& item : meaningOf(scene)) EXPECT_EQ(item.at("role"), row.role);
    for (const auto& text : having(drawnBy(scene), "draw", "text")) {
      const json font = {{"font", "system"}, {"size", 14.5}, {"weight", "regular"}, {"design", "default"}};
      EXPECT_EQ(part(text, font), font);
    }
    const bool isInteractive = row.systemVersion >= 17;
    for (const auto& box : having(drawnBy(scene), "draw", "shape")) {
      EXPECT_EQ(box.at("cornerRadius"), isInteractive ? 4 : 2.5);
      EXPECT_EQ(box.at("frame").at(2), isInteractive ? 16 : 10);
      EXPECT_EQ(box.at("opacity"), 0.7);
    }
  }
}

TEST(TaskRectangular, SaysThatNothingIsLeftByTheKindOfItems) {
  EXPECT_EQ(textsOf(sceneOf(entryOf(0, 3), WidgetFamily::accessoryRectangular)), Texts{"No Tasks Left"});
  EXPECT_EQ(textsOf(sceneOf(entryOf(0, 3, habitItems), WidgetFamily::accessoryRectangular)), Texts{"No Habits Left"});
}

TEST(TaskCircular, ShowsHowManyAreDone) {
  const struct {
    int open;
    int total;
    int systemVersion;
    Texts shown;
  } rows[] = {
      {3, 5, 17, {"2", "Tasks"}},    {0, 5, 16, {"5", "Tasks"}},    {5, 5, 17, {"0", "Tasks"}},
      {3, 5, 15, {"Tasks"}},         {0, 0, 17, {"All Completed"}}, {4, 0, 17, {"All Completed"}},
      {0, 0, 15, {"All Completed"}},
  };
  for (const auto& row : rows) {
    const auto scene = sceneOf(entryOf(row.open, row.total), WidgetFamily::accessoryCircular, row.systemVersion);
    EXPECT_EQ(textsOf(scene), row.shown) << row.open << " of " << row.total << " on " << row.systemVersion;
  }
  const auto gauge = meaningOf(sceneOf(entryOf(3, 5), WidgetFamily::accessoryCircular));
  ASSERT_EQ(gauge.size(), 1U);
  const json said = {{"role", "gauge"}, {"label", "Tasks"}, {"value", 2}, {"total", 5}};
  EXPECT_EQ(part(gauge[0], said), said);
}

TEST(TaskCircular, MovesTheMarkerAroundTheOpenRing) {
  // Without a task done it stands at the lower left end of the ring, with half of them done at the top.
  const auto markerOf = [](int open, int total) {
    const auto circles =
        having(drawnBy(sceneOf(entryOf(open, total), WidgetFamily::accessoryCircular)), "shape", "circle");
    const auto& frame = circles.at(0).at("frame");
    return std::pair(frame[0].get<double>() + frame[2].get<double>() / 2 - 36,
                     frame[1].get<double>() + frame[3].get<double>() / 2 - 36);
  };
  const auto [startX, startY] = markerOf(4, 4);
  EXPECT_LT(startX, -15);
  EXPECT_GT(startY, 15);
  const auto [halfX, halfY] = markerOf(2, 4);
  EXPECT_NEAR(halfX, 0, 0.1);
  EXPECT_LT(halfY, -25);
  const auto [endX, endY] = markerOf(0, 4);
  EXPECT_GT(endX, 15);
  EXPECT_NEAR(endY, startY, 0.1);
}

TEST(TaskLockScreen, DrawsNothingOutsideItsSlotAndNoBackground) {
  for (const uikit::Screen screen : {uikit::Screen{430, 932}, uikit::Screen{390, 844}, uikit::Screen{320, 568}}) {
    for (const auto family : {WidgetFamily::accessoryCircular, WidgetFamily::accessoryRectangular}) {
      for (const int version : {15, 16, 17}) {
        for (const int open : {0, 1, 5}) {
          const auto scene = sceneOf(entryOf(open, 5), family, version, screen);
          EXPECT_TRUE(having(drawnBy(scene), "name", "paper1new_widget").empty());
          expectWithin(scene);
        }
      }
    }
  }
}

}  // namespace
}  // namespace mirune
