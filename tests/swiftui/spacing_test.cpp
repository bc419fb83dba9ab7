#include <gtest/gtest.h>

#include "laid_out.hpp"

namespace swiftui {
namespace {

/// The gap between the two children of a column, with texts 10 points high whose rules give 3 above and 5 below.
double gapInColumn(const View& above, const View& below) {
  const support::FakeMeasurer measurer;
  const ResolvedWidget widget = resolve(vstack({}, {above, below}), {});
  const PlacedElement placed = layout(widget.content, {.bounds = {.size = {100, 200}}}, measurer);
  const Rect first = placed.children[0].frame;
  return placed.children[1].frame.origin.y - (first.origin.y + first.size.height);
}

TEST(DefaultSpacing, FollowsWhatMeetsInAColumn) {
  const View words = text("a");
  const View box = filled(Rectangle{}).frame({.width = 10, .height = 10});
  constexpr double aboveText = 3;  // 10 + 1 - 8
  constexpr double belowText = 5;  // 10 + 1 - 6
  const struct {
    const char* what;
    View above;
    View below;
    double wanted;
  } rows[] = {
      {"texts touch", words, words, 0},
      {"a view above a text", box, words, aboveText},
      {"a text above a view", words, box, belowText},
      {"two views", box, box, 8},
      {"a picture is a view like others", resizableImage("x").frame({.height = 5}), words, aboveText},
      {"nothing beside a spacer", words, spacer(), 0},
      {"nothing beside a spacer", spacer(), box, 0},
      {"a column shows its last child below", vstack({}, {box, words}), box, belowText},
      {"and its first above", box, vstack({}, {words, box}), aboveText},
      {"a row shows all its children", hstack({}, {words, words}), words, 0},
      {"the largest of their rules counts", hstack({}, {words, box}), words, aboveText},
      {"so does a pile", zstack({}, {words, words}), words, 0},
      {"what only draws is seen through", words.background(box).offset({.x = 1}).fixedSize(), words, 0},
      {"padding makes it a thing of its own", words.padding(2), words, aboveText},
      {"padding of the other direction does not", words.padding({.leading = 2}), words, 0},
      {"nor that of the edge that does not meet", words.padding({.top = 2}), words, 0},
      {"but that of the edge that meets", words.padding({.bottom = 2}), words, aboveText},
      {"a frame of that direction", words.frame({.height = 12}), words, aboveText},
      {"a frame of the other direction", words.frame({.width = 12}), words, 0},
      {"a flexible frame of that direction", words.frame({.maxHeight = 12}), words, aboveText},
      {"a flexible frame of the other direction", words.frame({.maxWidth = infinity}), words, 0},
      {"an empty container", vstack({}, {}), box, 8},
  };
  for (const auto& row : rows) EXPECT_NEAR(gapInColumn(row.above, row.below), row.wanted, 1e-9) << row.what;
}

TEST(DefaultSpacing, IsEightInARow) {
  const View box = filled(Rectangle{}).frame({.width = 10, .height = 10});
  EXPECT_EQ(answered(hstack({}, {text("a"), text("b"), box}), {}).width, 30 + 2 * 8);
  EXPECT_EQ(answered(hstack({}, {text("a"), vstack({}, {text("b")}), box.padding(2)}), {}).width, 34 + 2 * 8);
}

}  // namespace
}  // namespace swiftui
