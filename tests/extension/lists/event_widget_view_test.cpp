#include "lists/event_widget_view.hpp"

#include <gtest/gtest.h>

#include "drawing.hpp"
#include "lists/event_content.hpp"
#include "lists/event_widget_view_wrapper.hpp"
#include "lists/task_event_view.hpp"
#include "widgetkit/widget_size.hpp"

namespace mirune {
namespace {

using nlohmann::json;
using Texts = std::vector<std::string>;

constexpr uikit::RGBA teal{.red = 0, .green = 0.5, .blue = 0.5};

/// An entry of that many events: "event 1", "event 2" and so on.
EventEntry entryOf(int count) {
  std::vector<EventWidgetInner> events;
  for (int i = 1; i <= count; ++i) {
    events.push_back({.title = "event " + std::to_string(i), .color = teal, .time = "9:00 - 9:30"});
  }
  return {.date = moment("2026-11-21T08:00:00Z"),
          .data = EventList(std::move(events)),
          .count = count,
          .image = 326,
          .name = "Events"};
}

uikit::Platform deviceWith(uikit::Screen screen) {
  uikit::Platform platform = platformAt({}, "nowhere");
  platform.screen = screen;
  return platform;
}

swiftui::Size smallSize(uikit::Screen screen) {
  return widgetkit::widgetSize(swiftui::WidgetFamily::systemSmall, screen);
}

/// A home-screen view as it is drawn in a family.
rendering::Scene sceneInFamily(const swiftui::View& view, swiftui::WidgetFamily family,
                               const uikit::Platform& platform) {
  auto environment = environmentOf(platform);
  environment.widgetFamily = family;
  return rendering::compose(swiftui::resolve(view, environment),
                            {.size = widgetkit::widgetSize(family, platform.screen)}, realRenderer());
}

TEST(EventWidgetView, ShowsAsManyRowsAsTheScreenHasRoomFor) {
  const struct {
    uikit::Screen screen;
    int count;
    int rows;
    const char* footer;
  } cases[] = {
      {{375, 667}, 4, 2, "+2 more"}, {{320, 568}, 3, 2, "+1 more"},   {{320, 568}, 2, 2, ""},
      {{390, 844}, 4, 3, "+1 more"}, {{390, 844}, 3, 3, ""},          {{390, 844}, 1, 1, ""},
      {{430, 932}, 9, 3, "+6 more"}, {{414, 736}, 4, 3, "+1 more"},   {{375, 812}, 4, 3, "+1 more"},
      {{360, 780}, 4, 3, "+1 more"}, {{1024, 1366}, 4, 3, "+1 more"},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(std::to_string(each.screen.width) + " " + std::to_string(each.count));
    const auto scene =
        sceneOfView(EventWidgetView{.entry = entryOf(each.count)}, deviceWith(each.screen), smallSize(each.screen));
    Texts wanted{"EVENTS", "21"};
    for (int i = 1; i <= each.rows; ++i) wanted.insert(wanted.end(), {"event " + std::to_string(i), "9:00 - 9:30"});
    if (*each.footer != '\0') wanted.emplace_back(each.footer);
    EXPECT_EQ(textsOf(scene), wanted);
    expectWithin(scene);
    double bottom = 0;
    for (const json& drawn : drawnBy(scene)) {
      if (drawn.at("draw") != "text") continue;
      const json& frame = drawn.at("frame");
      if (drawn.at("text") != "21" && drawn.at("text") != "EVENTS") {
        EXPECT_GE(frame.at(1).get<double>(), bottom) << drawn << " stands in the one above";
      }
      bottom = frame.at(1).get<double>() + frame.at(3).get<double>();
    }
  }
}

TEST(EventWidgetView, DrawsARowWithItsBar) {
  const auto drawn = drawnBy(sceneOfView(EventWidgetView{.entry = entryOf(1)}, deviceWith({390, 844})));
  const json bar = having(drawn, "shape", "rectangle").at(0);
  const json title = having(drawn, "text", "event 1").at(0);
  const json time = having(drawn, "text", "9:00 - 9:30").at(0);
  const json likeBar = {{"fill", "#008080"}};
  EXPECT_EQ(part(bar, likeBar), likeBar);
  const json likeTitle = {{"font", "system"}, {"size", 13}, {"weight", "light"}, {"design", "default"}};
  EXPECT_EQ(part(title, likeTitle), likeTitle);
  const json likeTime = {{"font", "system"}, {"size", 10}, {"weight", "light"}};
  EXPECT_EQ(part(time, likeTime), likeTime);

  EXPECT_EQ(bar.at("frame").at(2), 0.75);
  EXPECT_EQ(title.at("frame").at(0), 16 + 0.75 + 7);
  EXPECT_EQ(time.at("frame").at(0), title.at("frame").at(0));
  const double top = bar.at("frame").at(1);
  const double bottom = top + bar.at("frame").at(3).get<double>();
  EXPECT_EQ(title.at("frame").at(1), top + 2);
  EXPECT_EQ(time.at("frame").at(1).get<double>() + time.at("frame").at(3).get<double>(), bottom - 2);
}

TEST(EventWidgetView, LeavesFourPointsBelowARowWhereTheyFit) {
  const auto bars = having(
      drawnBy(sceneOfView(EventWidgetView{.entry = entryOf(3)}, deviceWith({430, 932}), {.width = 170, .height = 170})),
      "shape", "rectangle");
  ASSERT_EQ(bars.size(), 3U);
  for (const std::size_t i : {1U, 2U}) {
    const json& above = bars[i - 1].at("frame");
    EXPECT_EQ(bars[i].at("frame").at(1), above.at(1).get<double>() + above.at(3).get<double>() + 4);
  }
}

TEST(EventWidgetView, BearsEveryTitle) {
  EventEntry entry = entryOf(1);
  for (const std::string& title :
       {std::string(10'000, 'm'), std::string("👩🏽‍🚀🎉"), std::string("פגישה עם נועה"), std::string(""),
        std::string("a\nb\nc"), std::string("\xff\xfe")}) {
    entry.data = EventList{{.title = title, .color = teal, .time = "9:00 - 9:30", .allday = true}};
    const auto scene = sceneOfView(EventWidgetView{.entry = entry}, deviceWith({320, 568}), {141, 141});
    EXPECT_EQ(having(drawnBy(scene), "text", "All Day").size(), 1U);
    expectWithin(scene);
  }
}

TEST(EventWidgetViewWrapper, ShowsTheMonthBesideTheListInMediumOnly) {
  using swiftui::WidgetFamily;
  const auto platform = deviceWith({390, 844});
  for (const auto family : {WidgetFamily::systemSmall, WidgetFamily::systemMedium, WidgetFamily::systemLarge}) {
    const auto scene = sceneInFamily(EventWidgetViewWrapper{.entry = entryOf(1)}, family, platform);
    const auto texts = textsOf(scene);
    EXPECT_EQ(std::ranges::count(texts, "NOVEMBER"), family == WidgetFamily::systemMedium ? 1 : 0);
    EXPECT_EQ(std::ranges::count(texts, "EVENTS"), 1);
    if (family != WidgetFamily::systemMedium) continue;
    // The month is that of the entry's day, and each has half of the width.
    EXPECT_EQ(having(drawnBy(scene), "shape", "circle").size(), 2U);
    const json month = having(drawnBy(scene), "text", "NOVEMBER").at(0).at("frame");
    EXPECT_NEAR(month.at(0).get<double>() + month.at(2).get<double>() / 2, 338.0 / 4, 1);
    EXPECT_EQ(having(drawnBy(scene), "text", "EVENTS").at(0).at("frame").at(0), 338 / 2 + 16);
  }
}

TEST(TaskEventView, StandsSideBySideWithTheHeaderAtTheLeft) {
  const TaskEventEntry entry{.taskEntry = {.name = "Tasks"}, .eventEntry = entryOf(0)};
  const auto platform = deviceWith({390, 844});
  const auto scene = sceneOfView(TaskEventView{.entry = entry}, platform, {.width = 338, .height = 158});
  EXPECT_EQ(textsOf(scene), (Texts{"EVENTS", "21", "No more events today", "TASKS", "No more tasks today"}));
  const json events = having(drawnBy(scene), "text", "EVENTS").at(0).at("frame");
  const json tasks = having(drawnBy(scene), "text", "TASKS").at(0).at("frame");
  EXPECT_EQ(events.at(1), tasks.at(1)) << "the titles are level";
  EXPECT_EQ(tasks.at(0), 16 + (338 - 8) / 2 + 8);
}

}  // namespace
}  // namespace mirune
