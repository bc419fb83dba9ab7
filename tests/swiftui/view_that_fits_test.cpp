#include <gtest/gtest.h>

#include "laid_out.hpp"

namespace swiftui {
namespace {

View ofWidths(const std::vector<double>& widths) {
  std::vector<View> candidates;
  for (const double width : widths) candidates.push_back(filled(Rectangle{}).frame({.width = width, .height = 10}));
  return viewThatFits(std::move(candidates));
}

TEST(ViewThatFits, ShowsTheFirstThatDoes) {
  EXPECT_EQ(laidOut(ofWidths({60, 50, 40}), {50, 20}), R"(
viewThatFits (0,5) 50x10
  frame (0,5) 50x10
    rectangle (0,5) 50x10
)");
  const struct {
    ProposedSize offer;
    double width;
  } rows[] = {
      {{.width = 60, .height = 10}, 60},
      {{.width = 59, .height = 10}, 50},
      {{.width = 60, .height = 9}, 40},
      {{.width = 1, .height = 1}, 40},
      {{.width = infinity, .height = 10}, 60},
      {{}, 60},
      {{.width = 45}, 40},
  };
  for (const auto& row : rows) EXPECT_EQ(answered(ofWidths({60, 50, 40}), row.offer).width, row.width);
  EXPECT_EQ(answered(viewThatFits({}), {}), (Size{}));
}

TEST(ViewThatFits, GoesByIdealSizesAndOffersWhatItIsOffered) {
  const View flexible = viewThatFits({text("abcd"), filled(Rectangle{})});
  EXPECT_EQ(answered(flexible, {.width = 39, .height = 10}), (Size{39, 10})) << "the text would break";
  EXPECT_EQ(answered(flexible, {.width = 40, .height = 10}), (Size{40, 10}));
}

}  // namespace
}  // namespace swiftui
