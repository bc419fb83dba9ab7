#include "support/grown_layout.hpp"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(GrownLayout, IsSoundWhateverTheTree) {
  std::mt19937 random(20261121);
  for (int tree = 0; tree < 5'000; ++tree) {
    std::vector<std::uint8_t> bytes(random() % 400);
    for (std::uint8_t& each : bytes) each = static_cast<std::uint8_t>(random());
    ASSERT_EQ(support::unsoundnessOfLayoutGrownFrom(bytes), "") << "tree " << tree;
  }
}

}  // namespace
