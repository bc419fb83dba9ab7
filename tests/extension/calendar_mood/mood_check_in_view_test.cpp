#include "calendar_mood/mood_check_in_view.hpp"

#include <gtest/gtest.h>

#include "calendar_mood/mood_drawing.hpp"
#include "calendar_mood/title_font.hpp"

namespace mirune {
namespace {

using nlohmann::json;
using swiftui::WidgetFamily;

const std::string question = "How are you feeling today?";

/// "label <address>" of each link.
std::vector<std::string> linksOf(const rendering::Scene& scene) {
  std::vector<std::string> links;
  for (const auto& item : rendering::jsonOf(scene.meaning)) {
    if (item.at("role") == "link") {
      links.push_back(item.at("label").get<std::string>() + " <" + item.at("url").get<std::string>() + ">");
    }
  }
  return links;
}

TEST(MoodCheckIn, LeadsToThePageOfEachDay) {
  auto platform = platformAt({}, "");
  platform.plannerURL = "https://a";
  MoodEntry entry = moodEntryOf(30, someMood());
  entry.data[1].moodData.id = "";
  EXPECT_EQ(linksOf(moodScene("mood", entry, WidgetFamily::systemMedium, platform)),
            (std::vector<std::string>{
                "Monday, November 16, Calm <https://a/mood/5>", "Tuesday, November 17 <https://a/mood/4>",
                "Wednesday, November 18, Calm <https://a/mood/3>", "Thursday, November 19, Calm <https://a/mood/2>",
                "Friday, November 20, Calm <https://a/mood/1>", "Today, Calm <https://a/mood/0>"}));
  EXPECT_EQ(moodScene("mood", entry, WidgetFamily::systemMedium, platform).url, std::nullopt);
  const auto small = moodScene("mood", entry, WidgetFamily::systemSmall, platform);
  EXPECT_EQ(small.url, "https://a/mood/0");
  EXPECT_EQ(rendering::plainText(small), question + "\nCalm\n<https://a/mood/0>\n");
}

TEST(MoodCheckIn, InvitesWhereTodayHasNoMood) {
  MoodEntry marked = moodEntryOf(30, someMood());
  marked.data[5].text = "-1";
  MoodEntry missing = moodEntryOf(30, someMood());
  missing.data[5].moodData = {.name = "Error", .icon = "cat-circle_placeholder", .color = "ff0000"};
  for (const MoodEntry& entry : {marked, missing}) {
    for (const auto family : {WidgetFamily::systemSmall, WidgetFamily::systemMedium}) {
      const auto scene = moodScene("mood", entry, family);
      const auto drawn = drawnBy(scene);
      EXPECT_EQ(having(drawn, "name", "cat-circle_calm").size(), family == WidgetFamily::systemMedium ? 5U : 0U);
      EXPECT_TRUE(having(drawn, "name", "cat-circle_placeholder").empty());
      const auto circles = having(drawn, "draw", "shape");
      ASSERT_EQ(circles.size(), 1U);
      const json dashed{{"shape", "circle"},
                        {"stroke", {{"width", 1}, {"dash", {5, 5}}, {"lineCap", "round"}}},
                        {"fill", nullptr},
                        {"color", "#E96E9E"}};
      EXPECT_EQ(part(circles[0], dashed), dashed);
      const auto plus = having(drawn, "name", "plus").at(0);
      EXPECT_EQ(plus.at("tint"), "#E96E9E");
      EXPECT_EQ(plus.at("frame").at(2), 11);
      EXPECT_EQ(plus.at("frame").at(3), 11);
      if (family == WidgetFamily::systemMedium) {
        EXPECT_EQ(linksOf(scene).back(), "Today <https://planner.example/mood/0>");
        EXPECT_EQ(part(having(drawn, "text", "Today").at(0), {{"size", 9}, {"weight", "regular"}}),
                  json({{"size", 9}, {"weight", "regular"}}));
      }
    }
  }
}

TEST(MoodCheckIn, FitsOnEveryScreen) {
  for (const std::string& screen : screens) {
    for (const bool isFull : {true, false}) {
      SCOPED_TRACE(screen + (isFull ? " full" : " empty"));
      const MoodEntry entry = moodEntryOf(31, isFull ? someMood() : MiruneDailyMood{});
      const auto medium = moodScene("mood", entry, WidgetFamily::systemMedium, platformOn(screen));
      expectWholeWithin(medium, 16);
      const auto drawn = drawnBy(medium);
      const auto cells = isFull ? having(drawn, "name", "moodbgnew") : having(drawn, "draw", "shape");
      ASSERT_EQ(cells.size(), 6U);
      EXPECT_GT(sideOf(cells), 25);
      for (std::size_t index = 1; index < cells.size(); ++index) {
        EXPECT_EQ(cells[index].at("frame").at(1), cells[0].at("frame").at(1)) << "on one height";
        EXPECT_GT(cells[index].at("frame").at(0), cells[index - 1].at("frame").at(0));
      }
      const auto small = moodScene("mood", entry, WidgetFamily::systemSmall, platformOn(screen));
      expectWholeWithin(small, 16);
      const auto asked = having(drawnBy(small), "draw", "text").at(0);
      EXPECT_EQ(asked.at("text"), question);
      EXPECT_GT(asked.value("scale", 1.0) * asked.at("size").get<double>(), 16) << "large enough to be read";
      expectWholeWithin(moodScene("mood", entry, WidgetFamily::systemLarge, platformOn(screen)), 16);
    }
  }
}

TEST(MoodCheckIn, TintsItsGroundUnlessTheColourIsTheOriginal) {
  MiruneDailyMood mood = someMood();
  for (const bool isOriginal : {true, false}) {
    mood.isOriginalColor = isOriginal;
    const auto drawn = drawnBy(moodScene("mood", moodEntryOf(30, mood), WidgetFamily::systemSmall));
    const auto ground = having(drawn, "name", "moodbgnew").at(0);
    EXPECT_EQ(ground.value("tint", "none"), isOriginal ? "none" : "#7DBF9E");
    const auto icon = having(drawn, "name", "cat-circle_calm").at(0);
    EXPECT_FALSE(icon.contains("tint"));
    for (const int axis : {0, 1}) {
      const double inset = icon.at("frame").at(axis).get<double>() - ground.at("frame").at(axis).get<double>();
      EXPECT_NEAR(inset, 4, 0.01);
    }
  }
}

TEST(MoodCheckIn, LooksForIconsInThePlannersFolder) {
  Planner planner;
  const auto entry = moodEntryOf(30, someMood("a cat of my own"));
  const auto scene = moodScene("mood", entry, WidgetFamily::systemSmall, planner.platform());
  for (const auto& command : scene.drawn) {
    const auto* image = std::get_if<rendering::DrawImage>(&command);
    if (image == nullptr || image->name != "a cat of my own") continue;
    EXPECT_EQ(image->folder, planner.folder() / "icons");
    return;
  }
  ADD_FAILURE() << "no icon";
}

TEST(MoodCheckIn, ShowsTheMonthWhereItIsLargeAndSaysWhatItDoesNotSupport) {
  const auto large = moodScene("mood", moodEntryOf(30, {}), WidgetFamily::systemLarge);
  EXPECT_EQ(textsOf(large).front(), "SEPTEMBER 2026");
  EXPECT_EQ(textsOf(large).size(), 31U);
  for (const auto family : {WidgetFamily::systemExtraLarge, WidgetFamily::accessoryCircular,
                            WidgetFamily::accessoryRectangular, WidgetFamily::accessoryInline}) {
    EXPECT_EQ(moodScene("mood", moodEntryOf(30, {}), family).meaning.at(0).label, "Not Supported");
  }
}

TEST(MoodCheckInDeath, FollowsAnEntryOfTooFewDays) {
  for (const auto family : {WidgetFamily::systemSmall, WidgetFamily::systemMedium}) {
    MoodEntry entry = moodEntryOf(30, someMood());
    entry.data.pop_back();
    EXPECT_DEATH(moodScene("mood", entry, family), "fewer than six days");
  }
}

}  // namespace
}  // namespace mirune
