#include "lists/task_widget_view.hpp"

#include <gtest/gtest.h>

#include "lists/checklist_toggle_style.hpp"
#include "timelines/entry_coding.hpp"
#include "widget_scene.hpp"

namespace mirune {
namespace {

using nlohmann::json;
using swiftui::WidgetFamily;
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
  for (const json& box : boxes) {
    const json expected{{"shape", "roundedRectangle"},
                        {"cornerRadius", 4},
                        {"stroke", {{"width", 1}, {"dash", json::array()}, {"lineCap", "butt"}}},
                        {"opacity", 0.7}};
    EXPECT_EQ(part(box, expected), expected);
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
          const auto scene = widgetScene("tasks", foundation::JSON(entryOf(count, count, longTitle)), family, platform);
          expectWithin(scene);
          double bottom = 0;
          for (const auto& drawn : drawnBy(scene)) {
            const auto& frame = drawn.at("frame");
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
    const auto scene = widgetScene("tasks", foundation::JSON(entryOf(4)), WidgetFamily::systemSmall, platform);
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
