#include "home/arrangement.hpp"

#include <gtest/gtest.h>

#include "home/listing.hpp"

namespace {

using home::Place;

TEST(Arrangement, ClosesGapsAndSettlesTies) {
  EXPECT_EQ(order(home::arranged({{.id = 4, .place = Place::lock, .position = -7},
                                  {.id = 3, .place = Place::home, .position = 9},
                                  {.id = 2, .place = Place::home, .position = 9},
                                  {.id = 1, .place = Place::home, .position = 12}})),
            "home: 2 3 1 | lock: 4");
}

TEST(Arrangement, MovesWithinAPlace) {
  const std::vector<home::PlacedWidget> widgets = home::arranged(
      {{.id = 1}, {.id = 2}, {.id = 3}, {.id = 4, .place = Place::lock}, {.id = 5, .place = Place::lock}});
  struct Case {
    int id;
    int position;
    const char* order;
  };
  const Case cases[] = {
      {1, 0, "home: 1 2 3 | lock: 4 5"},          {1, 1, "home: 2 1 3 | lock: 4 5"},
      {1, 2, "home: 2 3 1 | lock: 4 5"},          {3, 0, "home: 3 1 2 | lock: 4 5"},
      {3, 1, "home: 1 3 2 | lock: 4 5"},          {2, 99, "home: 1 3 2 | lock: 4 5"},
      {2, -99, "home: 2 1 3 | lock: 4 5"},        {4, 1, "home: 1 2 3 | lock: 5 4"},
      {5, 0, "home: 1 2 3 | lock: 5 4"},          {9, 0, "home: 1 2 3 | lock: 4 5"},
      {4, 2147483647, "home: 1 2 3 | lock: 5 4"},
  };
  for (const auto& [id, position, expected] : cases) {
    EXPECT_EQ(order(home::moved(widgets, id, position)), expected) << id << " to " << position;
  }
}

}  // namespace
