#include "styling/theme.hpp"

#include <gtest/gtest.h>

#include "planner.hpp"

namespace mirune {
namespace {

using uikit::ColorScheme;

TEST(Theme, IsDarkForOneOnly) {
  for (const int value : {-1, 0, 1, 2, 257}) {
    Planner planner;
    planner.writeSettings({{"app_theme_mode", value}});
    auto platform = planner.platform();
    for (const auto appearance : {ColorScheme::light, ColorScheme::dark}) {
      platform.appearance = appearance;
      EXPECT_EQ(plannerTheme(platform), value == 1 ? ColorScheme::dark : ColorScheme::light) << value;
    }
  }
}

TEST(Theme, IsLightWithoutSettings) {
  Planner planner;
  EXPECT_EQ(plannerTheme(planner.platform()), ColorScheme::light);
  EXPECT_EQ(plannerTheme(platformAt({}, "")), ColorScheme::light);
  support::writeBytes(planner.folder() / support::suitePath, "damaged");
  EXPECT_EQ(plannerTheme(planner.platform()), ColorScheme::light);
}

}  // namespace
}  // namespace mirune
