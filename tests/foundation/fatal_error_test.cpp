#include "foundation/fatal_error.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace foundation {
namespace {

constexpr long long largest = std::numeric_limits<long long>::max();
constexpr long long smallest = std::numeric_limits<long long>::min();

TEST(FatalErrorDeathTest, EndsTheProcessWithOneLine) {
  EXPECT_EXIT(fatalError("two\nlines"), testing::ExitedWithCode(70), "^two lines\n$");
}

TEST(FatalErrorDeathTest, IsWhatASumOutOfRangeMeets) {
  EXPECT_EQ(checkedSum(largest, smallest), -1);
  EXPECT_EQ(checkedDifference(smallest, -1), smallest + 1);
  EXPECT_EXIT(checkedSum(largest, 1), testing::ExitedWithCode(70), "sum");
  EXPECT_EXIT(checkedDifference(smallest, 1), testing::ExitedWithCode(70), "difference");
}

}  // namespace
}  // namespace foundation
