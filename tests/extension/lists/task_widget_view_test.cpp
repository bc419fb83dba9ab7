#include "lists/task_widget_view.hpp"

#include <gtest/gtest.h>

#include "lists/checklist_toggle_style.hpp"
#include "timelines/entry_coding.hpp"
#include "widget_scene.hpp"
#include "widgetkit/widget_size.hpp"

namespace mirune {
namespace {

using nlohmann::json;
using swiftui::WidgetFamily;
using uikit::ColorScheme;
using Texts = std::vector<std::string>;

const std::string longTitle =
    "Write to everybody who was there that the meeting of the spring term has been moved to the autumn";

/// An entry with that count of open items, and as many of them in its data unless told otherwise.
TaskEntry entryOf(int count, int listed, const std::string& title = "item ") {
  TaskEntry entry{.date = moment("2026-11-21T00:00:00Z"), .count = count, .totalTaskCount = count, .name = "Tasks"};
  for (int number = 1; number <= listed; ++number) {
    entry.data.push_back({.id = foundation::UUID::parse(idNumber(number)).value(),
                          .title = title + std::to_string(number),
                          .date = entry.date});
  }
  return entry;
}
TaskEntry entryOf(int count) {
  return entryOf(count, count);
}

rendering::Scene sceneOfList(const TaskEntry& entry, bool shouldAddHeader = true) {
  return sceneOfView(TaskWidgetView{.entry = entry, .shouldAddHeader = shouldAddHeader}, platformAt({}, ""));
}

/// The tasks widget as the host has it drawn.
rendering::Scene sceneOfWidget(const TaskEntry& entry, WidgetFamily family, const uikit::Platform& platform) {
  return widgetScene("tasks", foundation::JSON(entry), family, platform);
}

TEST(TaskWidgetView, ShowsThreeRowsAndHowManyMoreThereAre) {
  const struct {
    int count;
    int listed;
    Texts below;  ///< the header
  } rows[] = {
      {0, 0, {"No more tasks today"}},
      {0, 2, {"No more tasks today"}},
      {-1, 0, {"No more tasks today"}},
      {1, 1, {"item 1"}},
      {3, 3, {"item 1", "item 2", "item 3"}},
      {4, 4, {"item 1", "item 2", "item 3", "+1 more"}},
      {5, 5, {"item 1", "item 2", "item 3", "+2 more"}},
      {5, 2, {"item 1", "item 2", "+2 more"}},
      {2, 5, {"item 1", "item 2", "item 3"}},
      {1000003, 3, {"item 1", "item 2", "item 3", "+1000000 more"}},
      {2, 0, {}},
  };
  for (const auto& row : rows) {
    Texts expected{"TASKS", "21"};
    expected.insert(expected.end(), row.below.begin(), row.below.end());
    EXPECT_EQ(textsOf(sceneOfList(entryOf(row.count, row.listed))), expected) << row.count << ", " << row.listed;
    expected.erase(expected.begin() + 1);
    EXPECT_EQ(textsOf(sceneOfList(entryOf(row.count, row.listed), false)), expected) << "without the badge";
  }
}

TEST(TaskWidgetView, NamesHabitsWhereThereAreNone) {
  TaskEntry habits = entryOf(0);
  habits.name = "Habits";
  EXPECT_EQ(textsOf(sceneOfList(habits)), (Texts{"HABITS", "21", "No more habits today"}));
}

TEST(TaskWidgetView, SetsItsTextsInTheirFonts) {
  const json title{{"text", "TASKS"}, {"size", 13}, {"weight", "medium"}, {"design", "rounded"}, {"opacity", 0.9}};
  const json row{{"text", "item 1"}, {"size", 14}, {"weight", "light"}, {"design", "default"}, {"opacity", 1}};
  const json more{{"text", "+1 more"}, {"size", 10}, {"weight", "light"}, {"design", "rounded"}, {"opacity", 1}};
  const json none{
      {"text", "No more tasks today"}, {"size", 13}, {"weight", "light"}, {"design", "rounded"}, {"opacity", 1}};
  const auto full = drawnBy(sceneOfList(entryOf(4)));
  const auto empty = drawnBy(sceneOfList(entryOf(0), false));
  for (const auto& [drawn, expected] :
       {std::pair(full, title), {full, row}, {full, more}, {empty, none}, {empty, title}}) {
    const auto found = having(drawn, "text", expected.at("text"));
    ASSERT_EQ(found.size(), 1U) << expected;
    EXPECT_EQ(part(found[0], expected), expected);
    EXPECT_EQ(found[0].at("font"), "system");
  }
}

TEST(TaskWidgetView, DrawsAnOpenBoxBeforeEachTitle) {
  const auto drawn = drawnBy(sceneOfList(entryOf(3)));
  const auto boxes = having(drawn, "draw", "shape");
  ASSERT_EQ(boxes.size(), 3U);
  EXPECT_TRUE(having(drawn, "name", "checkmark").empty()) << "no box is ticked";
  for (std::size_t index = 0; index < boxes.size(); ++index) {
    const json expected{{"shape", "roundedRectangle"},
                        {"cornerRadius", 4},
                        {"stroke", {{"width", 1}, {"dash", json::array()}, {"lineCap", "butt"}}},
                        {"opacity", 0.7}};
    EXPECT_EQ(part(boxes[index], expected), expected);
    const json box = boxes[index].at("frame");
    const json title = having(drawn, "text", "item " + std::to_string(index + 1)).at(0).at("frame");
    EXPECT_EQ(box.at(2), 16);
    EXPECT_EQ(box.at(3), 16);
    EXPECT_EQ(title.at(0).get<double>(), box.at(0).get<double>() + 16 + 4 + 2) << "behind the box and its paddings";
    const double middle = box.at(1).get<double>() + 8;
    EXPECT_NEAR(title.at(1).get<double>() + title.at(3).get<double>() / 2, middle, 0.51) << "on one height";
  }
}

TEST(ChecklistToggleStyle, ShowsItsTickWhereItIsOn) {
  for (const int style : {0, 1}) {
    for (const bool isOn : {false, true}) {
      const swiftui::View view =
          swiftui::toggle({.isOn = isOn}, swiftui::text("label")).toggleStyle(ChecklistToggleStyle{.style = style});
      const auto drawn = drawnBy(sceneOfView(view, platformAt({}, "")));
      const auto box = having(drawn, "draw", "shape").at(0);
      EXPECT_EQ(box.at("shape"), style == 0 ? "roundedRectangle" : "rectangle");
      const auto ticks = having(drawn, "name", "checkmark");
      ASSERT_EQ(ticks.size(), isOn ? 1U : 0U);
      if (!isOn) continue;
      const auto& frame = ticks[0].at("frame");
      EXPECT_EQ(frame.at(2), 9);
      EXPECT_EQ(frame.at(3), 9);
      EXPECT_EQ(frame.at(0).get<double>() - box.at("frame").at(0).get<double>(), 3.5);
      EXPECT_EQ(ticks[0].value("opacity", 1.0), 1);
    }
  }
}

TEST(TaskWidgetView, CutsWhatIsTooLongInThePictureOnly) {
  for (const std::string& title :
       {longTitle, "two\nlines " + longTitle, std::string("\xD7\x90\xD7\x91 ") + longTitle, std::string(5000, 'x')}) {
    TaskEntry entry = entryOf(1, 1, title);
    entry.data[0].title = title;
    const auto scene = sceneOfList(entry);
    const auto shown = textsOf(scene).at(2);
    EXPECT_TRUE(shown.ends_with("…")) << shown;
    EXPECT_LT(shown.size(), 40U) << shown;
    EXPECT_EQ(shown.find('\n'), std::string::npos) << shown;
    EXPECT_EQ(scene.meaning.back().label, title);
  }
}

TEST(TaskWidgetView, SaysWhatItsRowsMark) {
  const auto meaning = rendering::jsonOf(sceneOfList(entryOf(5)).meaning);
  ASSERT_EQ(meaning.size(), 6U);
  EXPECT_EQ(meaning[0].at("label"), "Tasks");
  EXPECT_EQ(meaning[1].at("label"), "Saturday, November 21");
  for (std::size_t row = 1; row <= 3; ++row) {
    const json said(meaning[row + 1]);
    const json expected{{"role", "checkbox"},
                        {"label", "item " + std::to_string(row)},
                        {"checked", false},
                        {"id", idNumber(static_cast<int>(row))},
                        {"date", "2026-11-21T00:00:00Z"}};
    EXPECT_EQ(part(said, expected), expected);
  }
  EXPECT_EQ(meaning[5].at("label"), "+2 more");
}

TEST(TaskWidget, FollowsThePlannersThemeAndNotTheSystems) {
  for (const int theme : {0, 1, 2}) {
    Planner planner;
    planner.writeSettings({{"app_theme_mode", theme}});
    auto platform = planner.platform();
    platform.appearance = theme == 1 ? ColorScheme::light : ColorScheme::dark;
    const auto scene = sceneOfWidget(entryOf(1), WidgetFamily::systemSmall, platform);
    EXPECT_EQ(scene.colorScheme, theme == 1 ? ColorScheme::dark : ColorScheme::light) << theme;
    const auto images = having(drawnBy(scene), "draw", "image");
    ASSERT_EQ(images.size(), 2U);
    EXPECT_EQ(images[0].at("name"), "paper1new_widget");
    EXPECT_EQ(images[1].at("name"), theme == 1 ? "dark-wsp-33" : "Asset 51aa") << theme;
    const auto number = having(drawnBy(scene), "text", "21").at(0);
    EXPECT_EQ(number.at("opacity"), theme == 1 ? 0.9 : 0.6) << theme;
  }
}

TEST(TaskWidget, StaysWithinItsBoundsOnEveryScreen) {
  const char* screens[] = {"430x932",  "428x926",  "414x896",  "414x736",  "393x852",   "390x844",  "375x812",
                           "375x667",  "360x780",  "320x568",  "744x1133", "768x1024",  "810x1080", "820x1180",
                           "834x1194", "834x1112", "954x1373", "970x1389", "1024x1366", "1192x1590"};
  const auto bottomOf = [](const json& frame) { return frame.at(1).get<double>() + frame.at(3).get<double>(); };
  for (const char* screen : screens) {
    for (const auto family : {WidgetFamily::systemSmall, WidgetFamily::systemMedium, WidgetFamily::systemLarge,
                              WidgetFamily::systemExtraLarge}) {
      for (const int version : {16, 17}) {
        for (int count = 0; count <= 6; ++count) {
          SCOPED_TRACE(std::string(screen) + " " + std::string(swiftui::nameOf(family)) + " " +
                       std::to_string(version) + " count " + std::to_string(count));
          auto platform = platformAt({.locale = count % 2 == 0 ? "en_US" : "ar_EG"}, "");
          platform.screen = uikit::Screen::parse(screen).value();
          platform.systemVersion = version;
          const auto scene = sceneOfWidget(entryOf(count, count, longTitle), family, platform);
          const auto size = widgetkit::widgetSize(family, platform.screen);
          double bottom = 0;
          for (const auto& drawn : drawnBy(scene)) {
            const auto& frame = drawn.at("frame");
            EXPECT_GE(frame.at(0).get<double>(), 0) << drawn;
            EXPECT_GE(frame.at(1).get<double>(), 0) << drawn;
            EXPECT_LE(frame.at(0).get<double>() + frame.at(2).get<double>(), size.width + 0.01) << drawn;
            EXPECT_LE(bottomOf(frame), size.height + 0.01) << drawn;
            if (drawn.at("draw") == "shape") {
              EXPECT_GE(frame.at(1).get<double>(), bottom) << "boxes do not overlap";
              bottom = bottomOf(frame);
            }
          }
          const auto meaning = rendering::jsonOf(scene.meaning);
          for (std::size_t index = 3; index < meaning.size(); ++index) {
            EXPECT_GE(meaning[index].at("frame").at(1).get<double>(),
                      bottomOf(json(meaning[index - 1].at("frame"))) - 0.01)
                << "lines stand below each other: " << meaning[index];
          }
        }
      }
    }
  }
}

TEST(TaskWidgetView, HasPlainRowsWhereTheSystemRunsNoActions) {
  auto platform = platformAt({}, "");
  for (const int version : {15, 16}) {
    platform.systemVersion = version;
    const auto scene = sceneOfWidget(entryOf(4), WidgetFamily::systemSmall, platform);
    const auto boxes = having(drawnBy(scene), "draw", "shape");
    ASSERT_EQ(boxes.size(), 3U) << version;
    for (const auto& box : boxes) {
      const json outline = {{"cornerRadius", 2.5}, {"opacity", 0.7}};
      EXPECT_EQ(part(box, outline), outline);
      EXPECT_EQ(box.at("frame").at(2), 10);
      EXPECT_EQ(box.at("stroke").at("width"), 1);
    }
    const json font = {{"size", 14}, {"weight", "light"}, {"design", "default"}};
    EXPECT_EQ(part(having(drawnBy(scene), "text", "item 1").at(0), font), font);
    for (const auto& item : rendering::jsonOf(scene.meaning)) EXPECT_EQ(item.at("role"), "text");
  }
}

}  // namespace
}  // namespace mirune
