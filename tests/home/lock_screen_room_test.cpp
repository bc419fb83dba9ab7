#include "home/lock_screen_room.hpp"

#include <gtest/gtest.h>

#include <map>

namespace {

/// Widgets on the lock screen, by the first letter of their family; an "S" stands on the home screen.
std::vector<home::PlacedWidget> placed(std::string_view letters) {
  const std::map<char, std::string> families = {{'i', "accessoryInline"},
                                                {'c', "accessoryCircular"},
                                                {'r', "accessoryRectangular"},
                                                {'x', "accessoryCorner"},
                                                {'S', "systemSmall"}};
  std::vector<home::PlacedWidget> widgets;
  for (const char letter : letters) {
    const auto& family = families.at(letter);
    widgets.push_back({.family = family, .place = home::placeOfFamily(family)});
  }
  return widgets;
}

TEST(LockScreenRoom, HoldsOneLineAndFourColumns) {
  struct Case {
    const char* placed;
    const char* fitting;
  };
  const Case cases[] = {
      {"", "icr"},   {"i", "cr"},       {"c", "icr"},     {"cc", "icr"},  {"ccc", "ic"}, {"cccc", "i"},
      {"r", "icr"},  {"rr", "i"},       {"rc", "ic"},     {"rcc", "i"},   {"irr", ""},   {"ircc", ""},
      {"icccc", ""}, {"SSSSSS", "icr"}, {"xxxxx", "icr"}, {"ccccc", "i"}, {"rrr", "i"},  {"iirr", ""},
  };
  for (const auto& [widgets, fitting] : cases) {
    std::string found;
    for (const auto& [letter, family] :
         {std::pair{'i', "accessoryInline"}, {'c', "accessoryCircular"}, {'r', "accessoryRectangular"}}) {
      if (home::hasRoom(placed(widgets), family)) found += letter;
    }
    EXPECT_EQ(found, fitting) << widgets;
    EXPECT_TRUE(home::hasRoom(placed(widgets), "systemLarge")) << widgets;
  }
}

}  // namespace
