#include <gtest/gtest.h>

#include <cmath>

#include "laid_out.hpp"

namespace swiftui {
namespace {

View plainTree(int depth) {
  if (depth == 0) return text("innermost words");
  const View inner = plainTree(depth - 1);
  if (depth % 2 == 0) return hstack({}, {text("a b"), inner, spacer()});
  return vstack({}, {inner, text("some more words")});
}

/// Every level divides what it has among several that give way.
View greedyTree(int depth) {
  if (depth == 0) return text("some words that wrap");
  const View inner = greedyTree(depth - 1);
  const View shape = filled(Rectangle{});
  if (depth % 2 == 0) return hstack({}, {shape, text("more words"), inner}).padding(1);
  return vstack({}, {inner, shape, text("and others")}).fixedSize(depth % 3 == 0, false);
}

TEST(Layout, OfADeepTreeAsksEachTextAFewTimes) {
  for (const auto& tree : {plainTree, greedyTree}) {
    const support::FakeMeasurer measurer;
    const ResolvedWidget widget = resolve(tree(40), {});
    layout(widget.content, {.bounds = {.size = {338, 354}}}, measurer);
    EXPECT_LT(measurer.textsMeasured, 41 * 100);
  }
}

/// The first element with a frame that is no frame; nothing where all is well.
std::string faultOf(const PlacedElement& placed) {
  const auto& [origin, size] = placed.frame;
  for (const double length : {origin.x, origin.y, size.width, size.height}) {
    if (!std::isfinite(length)) return outline(placed);
  }
  if (size.width < 0 || size.height < 0) return outline(placed);
  for (const PlacedElement& child : placed.children) {
    if (std::string fault = faultOf(child); !fault.empty()) return fault;
  }
  return {};
}

TEST(Layout, HasOnlyFiniteFramesAndNoNegativeOnes) {
  const View stretched = filled(Rectangle{}).frame({.minWidth = 5, .maxWidth = infinity, .maxHeight = infinity});
  const View trees[] = {
      hstack({}, {stretched, text("ab"), vstack({}, {stretched, spacer(), stretched})}),
      zstack({}, {stretched, hstack({.alignment = VerticalAlignment::firstTextBaseline}, {text("a"), stretched})}),
      vstack({.spacing = -40}, {stretched, text("abc").padding(-30), stretched}),
      hstack({}, {filled(Circle{}), stretched.frame({.minWidth = infinity}), stretched}),
      stretched.fixedSize().overlay(hstack({}, {spacer(), stretched.fixedSize(), spacer()})),
  };
  for (const View& tree : trees) {
    for (const Size size : {Size{100, 50}, Size{3, 3}, Size{0, 0}}) {
      const ResolvedWidget widget = resolve(tree, {});
      EXPECT_EQ(faultOf(layout(widget.content, {.bounds = {.size = size}}, support::FakeMeasurer())), "");
    }
    const Size largest = answered(tree, {.width = infinity, .height = infinity});
    EXPECT_FALSE(std::isnan(largest.width) || std::isnan(largest.height));
  }
}

}  // namespace
}  // namespace swiftui
