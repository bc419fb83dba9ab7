#include "lists/mirune_widgets_entry_view.hpp"

#include <gtest/gtest.h>

#include "lists/thoughts.hpp"
#include "styling/fonts.hpp"
#include "timelines/entry_coding.hpp"
#include "timelines/thought_of_the_day.hpp"
#include "widget_scene.hpp"

namespace mirune {
namespace {

using nlohmann::json;
using uikit::ColorScheme;
using Texts = std::vector<std::string>;

constexpr double padding = 16;

/// The quote widget as the host has it drawn.
rendering::Scene sceneOfWidget(const uikit::Platform& platform) {
  return widgetScene("quote", foundation::JSON(SimpleEntry{}), swiftui::WidgetFamily::systemMedium, platform);
}

json quoteOf(const rendering::Scene& scene) {
  return having(drawnBy(scene), "draw", "text").at(1);
}

/// A device on a day that shows the text of that index.
uikit::Platform deviceShowing(std::size_t index, uikit::Screen screen) {
  const auto dayOfYear = static_cast<int>(index == 0 ? thoughtTable().size() : index);
  auto platform = platformAt({.now = "2026-01-01T12:00:00Z"}, "");
  platform.now += std::chrono::days(dayOfYear - 1);
  platform.screen = screen;
  return platform;
}

TEST(ShownThought, PutsTheAuthorBelow) {
  const std::string_view texts[] = {"Be kind;;;;Anon", ";;;;", "one;;;;two;;;;three"};
  EXPECT_EQ(shownThought(texts, 0), "Be kind \n\n- Anon");
  EXPECT_EQ(shownThought(texts, 1), " \n\n- ");
  EXPECT_EQ(shownThought(texts, 2), "one \n\n- two");
}

TEST(ShownThoughtDeathTest, StopsForATextThatIsNotThere) {
  const std::string_view texts[] = {"Be kind;;;;Anon", "Be kind;;;Anon"};
  const auto stopped = testing::ExitedWithCode(70);
  EXPECT_EXIT(shownThought(texts, -1), stopped, "no saying of the number -1");
  EXPECT_EXIT(shownThought(texts, 2), stopped, "no saying of the number 2");
  EXPECT_EXIT(shownThought({}, 0), stopped, "no saying of the number 0");
  EXPECT_EXIT(shownThought(texts, INT64_MAX), stopped, "no saying");
  EXPECT_EXIT(shownThought(texts, 1), stopped, "a saying has no author: Be kind;;;Anon");
}

TEST(QuoteView, ShowsTheTextOfTheDayOfDrawing) {
  const std::string_view texts[] = {"zero;;;;A", "one;;;;B", "two;;;;C"};
  const SimpleEntry otherDay{.date = moment("2026-07-07T00:00:00Z")};
  for (const char* now : {"2026-01-02T00:00:00Z", "2026-01-02T23:59:59Z"}) {
    const auto scene = sceneOfView(Mirune_WidgetsEntryView{.entry = otherDay, .thoughts = texts},
                                   platformAt({.now = now}, ""), {.width = 338, .height = 158});
    EXPECT_EQ(textsOf(scene), (Texts{"QUOTE OF THE DAY", "two \n\n- C"})) << now;
  }
}

TEST(QuoteView, SetsItsTextsInTheirFontsAndTheme) {
  for (const bool isDark : {false, true}) {
    Planner planner;
    planner.writeSettings({{"app_theme_mode", isDark ? 1 : 0}});
    auto platform = planner.platform();
    platform.appearance = isDark ? ColorScheme::light : ColorScheme::dark;
    const auto scene = sceneOfWidget(platform);
    const auto drawn = drawnBy(scene);
    ASSERT_EQ(drawn.size(), 3U);
    EXPECT_EQ(drawn[0].at("name"), "paper1new_widget");
    const std::string ink = isDark ? "#FFFFFF" : "#000000";
    const json title{
        {"text", "QUOTE OF THE DAY"}, {"font", "system"}, {"size", 12},   {"weight", "bold"}, {"kerning", 1},
        {"design", "default"},        {"opacity", 0.6},   {"color", ink}, {"italic", nullptr}};
    EXPECT_EQ(part(drawn[1], title), title);
    const json quote{{"font", "MuseoSans-500"}, {"size", 14},   {"italic", true},
                     {"opacity", 0.9},          {"color", ink}, {"kerning", nullptr}};
    EXPECT_EQ(part(drawn[2], quote), quote);
  }
}

TEST(QuoteView, KeepsTheTitleAtTheTopAndTheQuoteInTheMiddleOfTheRest) {
  const std::string_view texts[] = {"Be kind;;;;Anon"};
  const swiftui::Size size{.width = 338, .height = 158};
  const auto drawn = drawnBy(sceneOfView(Mirune_WidgetsEntryView{.thoughts = texts}, platformAt({}, ""), size));
  const json title = drawn.at(0).at("frame");
  const json quote = drawn.at(1).at("frame");
  EXPECT_EQ(title.at(0), padding);
  EXPECT_EQ(quote.at(0), padding);
  EXPECT_NEAR(title.at(1).get<double>() + title.at(3).get<double>() / 2, padding + 5, 0.51) << "10 points high";
  const double above = quote.at(1).get<double>() - (padding + 10);
  const double below = size.height - padding - quote.at(1).get<double>() - quote.at(3).get<double>();
  EXPECT_GT(above, below);
  EXPECT_LT(above, below + 16) << "but for the gap below the title";
}

TEST(QuoteView, LeavesTheRoomBetweenLinesThatItsFontWants) {
  for (const bool isItalic : {false, true}) {
    swiftui::Font font = swiftui::custom(quoteFont, 10);
    font.italic = isItalic;
    EXPECT_NEAR(realRenderer().fontMetrics(font).lineHeight(), 12, 0.01);
  }
}

TEST(QuoteView, ShowsEverySayingWholeOnEveryScreen) {
  const struct {
    uikit::Screen screen;
    double smallestScale;  ///< 1: no saying is shrunk
  } rows[] = {
      {{430, 932}, 1}, {{390, 844}, 1}, {{375, 667}, 0.95}, {{320, 568}, 0.85}, {{744, 1133}, 0.85}, {{1192, 1590}, 1},
  };
  for (const auto& row : rows) {
    for (std::size_t index = 0; index < thoughtTable().size(); ++index) {
      const auto scene = sceneOfWidget(deviceShowing(index, row.screen));
      const json quote = quoteOf(scene);
      EXPECT_EQ(quote.at("text"), shownThought(thoughtTable(), static_cast<std::int64_t>(index)));
      EXPECT_GE(quote.value("scale", 1.0), row.smallestScale) << quote;
      const json frame = quote.at("frame");
      EXPECT_LE(frame.at(0).get<double>() + frame.at(2).get<double>(), scene.size.width - padding) << quote;
      EXPECT_LE(frame.at(1).get<double>() + frame.at(3).get<double>(), scene.size.height - padding) << quote;
      EXPECT_GE(frame.at(1).get<double>(), padding + 10) << quote;
    }
  }
}

}  // namespace
}  // namespace mirune
