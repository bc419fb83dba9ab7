#include <gtest/gtest.h>

#include "laid_out.hpp"

namespace swiftui {
namespace {

TEST(Text, WrapsAndIsAsWideAsItsWidestLine) {
  const View shown = text("ab cdef gh");
  const struct {
    ProposedSize proposal;
    Size wanted;
  } rows[] = {
      {{}, {100, 10}},
      {{infinity, infinity}, {100, 10}},
      {{100, 100}, {100, 10}},
      {{79, 100}, {70, 20}},
      {{55, 100}, {40, 30}},
      {{55, 29}, {50, 20}},
      {{55, 0}, {50, 10}},
      {{0, 100}, {0, 10}},
      {{std::nullopt, 0}, {100, 10}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(answered(shown, row.proposal), row.wanted)
        << row.proposal.width.value_or(-1) << "x" << row.proposal.height.value_or(-1);
  }
  EXPECT_EQ(answered(shown.lineLimit(1), {.width = 55, .height = 100}), (Size{50, 10}));
  EXPECT_EQ(answered(text("ab\ncdef"), {}), (Size{40, 20}));
  EXPECT_EQ(answered(text(""), {.width = 50, .height = 50}), (Size{0, 10}));
}

TEST(Text, IsRoundedUpToPixelsAtEveryScaleButNotBeyondItsProposal) {
  support::FakeMeasurer measurer;
  measurer.characterWidth = 5.1;
  measurer.metrics = [](const Font&) { return FontMetrics{.ascent = 9.1, .descent = 2.25, .capHeight = 7}; };
  const struct {
    double scale;
    Size wanted;
  } rows[] = {{1, {11, 12}}, {2, {10.5, 11.5}}, {3, {31 / 3.0, 35 / 3.0}}};
  for (const auto& row : rows) {
    const Size size = answered(text("ab"), {}, measurer, row.scale);
    EXPECT_NEAR(size.width, row.wanted.width, 1e-9) << row.scale;
    EXPECT_NEAR(size.height, row.wanted.height, 1e-9) << row.scale;
  }
  EXPECT_EQ(answered(text("ab"), {.width = 10.2, .height = 20}, measurer, 1).width, 10.2);
  // A single letter that is too wide sticks out of what the text takes.
  EXPECT_EQ(answered(text("ab"), {.width = 3, .height = 40}, measurer, 1).width, 3);
}

TEST(Shape, TakesItsProposalOrTenPoints) {
  for (const Shape& shape : {Shape(Rectangle{}), Shape(RoundedRectangle{.cornerRadius = 4})}) {
    EXPECT_EQ(answered(filled(shape), {.width = 30, .height = 20}), (Size{30, 20}));
    EXPECT_EQ(answered(filled(shape), {.width = 30}), (Size{30, 10}));
    EXPECT_EQ(answered(stroked(shape, {.lineWidth = 8}), {}), (Size{10, 10}));
  }
  EXPECT_EQ(answered(filled(Circle{}), {.width = 30, .height = 20}), (Size{20, 20}));
  EXPECT_EQ(answered(filled(Circle{}), {.width = 30}), (Size{10, 10}));
}

TEST(Image, KeepsItsSizeUnlessItIsResizable) {
  support::FakeMeasurer measurer;
  measurer.images = {{"sun", {24, 16}}};
  EXPECT_EQ(answered(image("sun"), {.width = 10, .height = 100}, measurer), (Size{24, 16}));
  EXPECT_EQ(answered(resizableImage("sun"), {.width = 10, .height = 100}, measurer), (Size{10, 100}));
  EXPECT_EQ(answered(resizableImage("sun"), {.width = 10}, measurer), (Size{10, 16}));
  EXPECT_EQ(answered(resizableSymbol("sun"), {}, measurer), (Size{24, 16}));
  EXPECT_EQ(answered(image("moon"), {.width = 10, .height = 10}, measurer), (Size{0, 0}));
}

}  // namespace
}  // namespace swiftui
