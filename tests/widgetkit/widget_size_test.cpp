#include "widgetkit/widget_size.hpp"

#include <gtest/gtest.h>

namespace swiftui {

void PrintTo(const Size& size, std::ostream* out) {
  *out << size.width << 'x' << size.height;
}

}  // namespace swiftui

namespace widgetkit {
namespace {

using swiftui::Size;
using enum swiftui::WidgetFamily;
using uikit::Screen;

TEST(WidgetSize, OfPhonesIsThePublishedOne) {
  const struct {
    Screen screen;
    Size small, medium, large, circular, rectangular, inLine;
  } rows[] = {
      {{430, 932}, {170, 170}, {364, 170}, {364, 382}, {76, 76}, {172, 76}, {257, 26}},
      {{428, 926}, {170, 170}, {364, 170}, {364, 382}, {76, 76}, {172, 76}, {257, 26}},
      {{414, 896}, {169, 169}, {360, 169}, {360, 379}, {76, 76}, {160, 72}, {248, 26}},
      {{414, 736}, {159, 159}, {348, 157}, {348, 357}, {76, 76}, {170, 76}, {248, 26}},
      {{393, 852}, {158, 158}, {338, 158}, {338, 354}, {72, 72}, {160, 72}, {234, 26}},
      {{390, 844}, {158, 158}, {338, 158}, {338, 354}, {72, 72}, {160, 72}, {234, 26}},
      {{375, 812}, {155, 155}, {329, 155}, {329, 345}, {72, 72}, {157, 72}, {225, 26}},
      {{375, 667}, {148, 148}, {321, 148}, {321, 324}, {68, 68}, {153, 68}, {225, 26}},
      {{360, 780}, {155, 155}, {329, 155}, {329, 345}, {72, 72}, {157, 72}, {225, 26}},
      // Its lock screen has no slots; it borrows those of 375x667.
      {{320, 568}, {141, 141}, {292, 141}, {292, 311}, {68, 68}, {153, 68}, {225, 26}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.screen.width);
    EXPECT_EQ(widgetSize(systemSmall, row.screen), row.small);
    EXPECT_EQ(widgetSize(systemMedium, row.screen), row.medium);
    EXPECT_EQ(widgetSize(systemLarge, row.screen), row.large);
    EXPECT_EQ(widgetSize(accessoryCircular, row.screen), row.circular);
    EXPECT_EQ(widgetSize(accessoryRectangular, row.screen), row.rectangular);
    EXPECT_EQ(widgetSize(accessoryInline, row.screen), row.inLine);
  }
}

TEST(WidgetSize, OfTabletsIsThatOfTheCanvas) {
  const struct {
    Screen screen;
    Size small, medium, large, extraLarge;
  } rows[] = {
      {{768, 1024}, {141, 141}, {305.5, 141}, {305.5, 305.5}, {634.5, 305.5}},
      {{744, 1133}, {141, 141}, {305.5, 141}, {305.5, 305.5}, {634.5, 305.5}},
      {{810, 1080}, {146, 146}, {320.5, 146}, {320.5, 320.5}, {669, 320.5}},
      {{820, 1180}, {155, 155}, {342, 155}, {342, 342}, {715.5, 342}},
      {{834, 1194}, {155, 155}, {342, 155}, {342, 342}, {715.5, 342}},
      {{834, 1112}, {150, 150}, {327.5, 150}, {327.5, 327.5}, {682, 327.5}},
      {{954, 1373}, {162, 162}, {350, 162}, {350, 350}, {726, 350}},
      {{970, 1389}, {162, 162}, {350, 162}, {350, 350}, {726, 350}},
      {{1024, 1366}, {170, 170}, {378.5, 170}, {378.5, 378.5}, {795, 378.5}},
      {{1192, 1590}, {188, 188}, {412, 188}, {412, 412}, {860, 412}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.screen.width);
    EXPECT_EQ(widgetSize(systemSmall, row.screen), row.small);
    EXPECT_EQ(widgetSize(systemMedium, row.screen), row.medium);
    EXPECT_EQ(widgetSize(systemLarge, row.screen), row.large);
    EXPECT_EQ(widgetSize(systemExtraLarge, row.screen), row.extraLarge);
  }
}

TEST(WidgetSize, OfAnUnlistedScreenIsThatOfTheNextNarrowerOne) {
  const struct {
    Screen screen;
    Screen taken;
  } rows[] = {
      {{402, 874}, {393, 852}}, {{300, 500}, {320, 568}},   {{2000, 3000}, {1192, 1590}},
      {{375, 700}, {375, 667}}, {{375, 800}, {375, 812}},   {{440, 956}, {430, 932}},
      {{414, 800}, {414, 736}}, {{834, 1150}, {834, 1112}}, {{1, 1}, {320, 568}},
  };
  for (const auto& row : rows) {
    for (const auto family : {systemSmall, systemMedium, systemLarge, accessoryRectangular}) {
      EXPECT_EQ(widgetSize(family, row.screen), widgetSize(family, row.taken))
          << row.screen.width << "x" << row.screen.height;
    }
  }
}

TEST(WidgetCornerRadius, FollowsTheSmallFamilyAndIsNoneOnTheLockScreen) {
  EXPECT_NEAR(widgetCornerRadius(systemSmall, {390, 844}), 22.1, 0.1);
  EXPECT_EQ(widgetCornerRadius(systemLarge, {390, 844}), widgetCornerRadius(systemSmall, {390, 844}));
  EXPECT_EQ(widgetCornerRadius(accessoryCircular, {390, 844}), 0);
}

}  // namespace
}  // namespace widgetkit
