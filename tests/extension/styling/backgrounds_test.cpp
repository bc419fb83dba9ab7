#include "styling/backgrounds.hpp"

#include <gtest/gtest.h>

#include "drawing.hpp"

namespace mirune {
namespace {

using nlohmann::json;
using uikit::ColorScheme;

const swiftui::View content = swiftui::filled(swiftui::Rectangle{}).frame({.width = 10, .height = 10});
const json paperFrame{0, 0, 158, 158};
const json contentFrame{74, 74, 10, 10};

TEST(Backgrounds, LayThePaperBehindTheWholeWidget) {
  for (const int version : {15, 16, 17, 18}) {
    SCOPED_TRACE(version);
    auto platform = platformAt({}, "");
    platform.systemVersion = version;
    const swiftui::View view = AddBackgroundModifier{.content = content};
    const auto resolved = swiftui::resolve(view, environmentOf(platform));
    EXPECT_EQ(resolved.containerBackground.has_value(), version >= 17);
    const auto drawn = drawnBy(sceneOfView(view, platform));
    ASSERT_EQ(drawn.size(), 2U);
    EXPECT_EQ(drawn[0].at("name"), "paper1new_widget");
    EXPECT_EQ(drawn[0].at("frame"), paperFrame);
    EXPECT_EQ(drawn[1].at("frame"), contentFrame);
  }
}

TEST(Backgrounds, ShowThePaperInThePlannersTheme) {
  for (const int version : {16, 17}) {
    for (const int theme : {0, 1}) {
      Planner planner;
      planner.writeSettings({{"app_theme_mode", theme}});
      auto platform = planner.platform();
      platform.systemVersion = version;
      platform.appearance = theme == 1 ? ColorScheme::light : ColorScheme::dark;
      const auto scene = sceneOfView(AddBackgroundModifier{.content = content}, platform);
      const auto* paper = std::get_if<rendering::DrawImage>(&scene.drawn.at(0));
      ASSERT_NE(paper, nullptr);
      EXPECT_EQ(paper->colorScheme, theme == 1 ? ColorScheme::dark : ColorScheme::light);
      const auto* shape = std::get_if<rendering::DrawShape>(&scene.drawn.at(1));
      ASSERT_NE(shape, nullptr);
      EXPECT_EQ(shape->ink.color, uikit::resolve(uikit::SystemColor::label, platform.appearance))
          << "the content's scheme is its own";
    }
  }
}

}  // namespace
}  // namespace mirune
