#include "calendar_mood/mood_chart_view.hpp"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "calendar_mood/mood_drawing.hpp"

namespace mirune {
namespace {

using nlohmann::json;
using swiftui::WidgetFamily;

/// How many things stand in each row, from the top.
std::vector<std::size_t> rowsOf(const std::vector<json>& things) {
  std::map<double, std::size_t> rows;
  for (const auto& thing : things) ++rows[thing.at("frame").at(1).get<double>()];
  std::vector<std::size_t> counts;
  for (const auto& [y, count] : rows) counts.push_back(count);
  return counts;
}

TEST(MoodChart, FitsEveryMonthOnEveryScreen) {
  for (const std::string& screen : screens) {
    for (const auto family : {WidgetFamily::systemSmall, WidgetFamily::systemLarge}) {
      double side = 0;
      for (int days = 28; days <= 31; ++days) {
        SCOPED_TRACE(screen + " " + std::string(swiftui::nameOf(family)) + " " + std::to_string(days));
        std::vector<std::size_t> rows{7, 7, 7, 7};
        if (days > 28) rows.push_back(static_cast<std::size_t>(days - 28));
        const double margin = family == WidgetFamily::systemSmall ? 10 : 16;

        const auto moods = moodScene("moods", moodEntryOf(days, someMood()), family, platformOn(screen));
        expectWholeWithin(moods, margin);
        const auto grounds = having(drawnBy(moods), "name", "moodbgnew");
        EXPECT_EQ(rowsOf(grounds), rows);
        if (side == 0) side = sideOf(grounds);
        EXPECT_GT(side, 15) << "large enough to be seen";
        EXPECT_NEAR(sideOf(grounds), side, 0.02) << "the same in every month";
        EXPECT_NEAR(sideOf(having(drawnBy(moods), "name", "cat-circle_calm")), side - 8, 0.02);

        const auto numbers = moodScene("moods", moodEntryOf(days, {}, -1), family, platformOn(screen));
        expectWholeWithin(numbers, margin);
        const auto cells = having(drawnBy(numbers), "draw", "shape");
        EXPECT_EQ(rowsOf(cells), rows);
        EXPECT_NEAR(sideOf(cells), side, 0.02);
        const auto texts = having(drawnBy(numbers), "draw", "text");
        ASSERT_EQ(texts.size(), cells.size() + 1) << "the title and a number for each cell";
        for (std::size_t index = 0; index < cells.size(); ++index) {
          const json& cell = cells[index].at("frame");
          const json& text = texts[index + 1].at("frame");
          EXPECT_EQ(texts[index + 1].at("text"), std::to_string(index + 1));
          EXPECT_LE(text.at(2).get<double>(), side + 0.01) << "no number is wider than its cell";
          EXPECT_NEAR(text.at(0).get<double>() + text.at(2).get<double>() / 2, cell.at(0).get<double>() + side / 2,
                      0.3);
        }
      }
    }
  }
}

TEST(MoodChart, SetsItsTexts) {
  const struct {
    WidgetFamily family;
    json title;
    json number;
  } rows[] = {
      {WidgetFamily::systemSmall,
       {{"size", 11}, {"weight", "semibold"}, {"kerning", 1.5}},
       {{"size", 9}, {"weight", "regular"}, {"color", "#000000"}, {"opacity", 1}}},
      {WidgetFamily::systemLarge,
       {{"size", 13}, {"weight", "semibold"}, {"kerning", 1.5}},
       {{"size", 14}, {"weight", "regular"}, {"color", "#000000"}, {"opacity", 1}}},
  };
  for (const auto& row : rows) {
    const auto drawn = drawnBy(moodScene("moods", moodEntryOf(30, {}, 21), row.family));
    EXPECT_EQ(part(having(drawn, "text", "SEPTEMBER 2026").at(0), row.title), row.title);
    EXPECT_EQ(part(having(drawn, "text", "21").at(0), row.number), row.number);
    json selected = row.number;
    selected.update({{"weight", "semibold"}, {"color", "#E96E9E"}, {"opacity", 0.9}});
    EXPECT_EQ(part(having(drawn, "text", "22").at(0), selected), selected) << "the index counts from 0, the day from 1";
    const json ground{{"color", "#8E8E93"}, {"opacity", 0.1}, {"stroke", nullptr}};
    for (const auto& shape : having(drawn, "draw", "shape")) EXPECT_EQ(part(shape, ground), ground);
  }
}

TEST(MoodChart, SelectsTheCellWhoseIndexIsTheDay) {
  const std::pair<std::int64_t, std::vector<std::string>> rows[] = {
      {0, {"1"}}, {1, {"2"}}, {29, {"30"}}, {30, {}}, {31, {}}, {-1, {}}, {INT64_MAX, {}}, {INT64_MIN, {}}};
  for (const auto& [day, numbers] : rows) {
    std::vector<std::string> selected;
    for (const auto& text : having(drawnBy(moodScene("moods", moodEntryOf(30, {}, day), WidgetFamily::systemLarge)),
                                   "color", uikit::hexText(accentColor()))) {
      selected.push_back(text.at("text"));
    }
    EXPECT_EQ(selected, numbers) << day;
  }
}

TEST(MoodChart, ShowsTheNumbersOfDaysWithoutAMood) {
  MoodEntry entry = moodEntryOf(31, someMood());
  entry.monthdata[2].moodData = {.name = "Error", .icon = "cat-circle_placeholder", .color = "ff0000"};
  entry.monthdata[30].moodData.id = "";
  for (const auto family : {WidgetFamily::systemSmall, WidgetFamily::systemLarge}) {
    const auto scene = moodScene("moods", entry, family);
    EXPECT_EQ(textsOf(scene), (std::vector<std::string>{"SEPTEMBER 2026", "3", "31"}));
    EXPECT_TRUE(having(drawnBy(scene), "name", "cat-circle_placeholder").empty());
    EXPECT_EQ(having(drawnBy(scene), "name", "cat-circle_calm").size(), 29U);
    EXPECT_EQ(scene.meaning.at(1).label, "1, Calm");
    EXPECT_EQ(scene.meaning.at(3).label, "3");
  }
}

TEST(MoodChart, LeadsToThePlannersChart) {
  auto platform = platformAt({}, "");
  platform.plannerURL = "mirune://open";
  for (const auto family : {WidgetFamily::systemSmall, WidgetFamily::systemMedium, WidgetFamily::systemLarge}) {
    EXPECT_EQ(moodScene("moods", moodEntryOf(30, {}), family, platform).url, "mirune://open/moodchart");
  }
}

TEST(MoodChart, IsBlankOrNotSupportedInOtherFamilies) {
  const auto medium = moodScene("moods", moodEntryOf(30, someMood()), WidgetFamily::systemMedium);
  EXPECT_TRUE(medium.drawn.empty());
  EXPECT_TRUE(medium.meaning.empty());
  for (const auto family : {WidgetFamily::systemExtraLarge, WidgetFamily::accessoryCircular,
                            WidgetFamily::accessoryRectangular, WidgetFamily::accessoryInline}) {
    const auto scene = moodScene("moods", moodEntryOf(30, someMood()), family);
    ASSERT_EQ(scene.meaning.size(), 1U);
    EXPECT_EQ(scene.meaning[0].label, "Not Supported");
  }
}

TEST(MoodChartDeath, FollowsAMonthThatIsTooShort) {
  for (const auto family : {WidgetFamily::systemSmall, WidgetFamily::systemLarge}) {
    for (const int days : {0, 27}) {
      EXPECT_DEATH(moodScene("moods", moodEntryOf(days, {}), family), "fewer than 28 days") << days;
    }
  }
}

}  // namespace
}  // namespace mirune
