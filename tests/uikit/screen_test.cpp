#include "uikit/screen.hpp"

#include <gtest/gtest.h>

namespace uikit {
namespace {

TEST(Screen, IsReadFromItsSides) {
  EXPECT_EQ(Screen::parse("390x844"), (Screen{.width = 390, .height = 844}));
  EXPECT_EQ(Screen::parse("1x10000"), (Screen{.width = 1, .height = 10000}));
  for (const char* text : {"", "x", "390", "390x", "x844", "390X844", "390x844x3", "0x844", "390x10001", "-390x844",
                           "+390x844", " 390x844", "390x844 ", "390.5x844", "99999999999x844"}) {
    EXPECT_EQ(Screen::parse(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace uikit
