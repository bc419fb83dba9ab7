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

}  // namespace
}  // namespace uikit
