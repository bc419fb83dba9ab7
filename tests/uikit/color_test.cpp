#include "uikit/color.hpp"

#include <gtest/gtest.h>

namespace uikit {
namespace {

TEST(Color, PrintsAsHexText) {
  EXPECT_EQ(hexText({.red = 1, .green = 0.5, .blue = 0}), "#FF8000");
  EXPECT_EQ(hexText({.red = 0.04, .green = 0.6, .blue = 1, .alpha = 0.5}), "#0A99FF80");
  EXPECT_EQ(hexText(clear), "#00000000");
  EXPECT_EQ(hexText({.red = 1.5, .green = -1}), "#FF0000");
}

TEST(SystemColor, FollowsTheColourScheme) {
  const struct {
    SystemColor color;
    const char* light;
    const char* dark;
  } rows[] = {{SystemColor::label, "#000000", "#FFFFFF"},
              {SystemColor::gray, "#8E8E93", "#8E8E93"},
              {SystemColor::pink, "#FF2D55", "#FF375F"}};
  for (const auto& row : rows) {
    EXPECT_EQ(hexText(resolve(row.color, ColorScheme::light)), row.light);
    EXPECT_EQ(hexText(resolve(row.color, ColorScheme::dark)), row.dark);
  }
  EXPECT_EQ(resolve(RGBA{.red = 1}, ColorScheme::dark), RGBA{.red = 1});
}

}  // namespace
}  // namespace uikit
