#include <gtest/gtest.h>

#include "laid_out.hpp"

namespace swiftui {
namespace {

View block(double width, double height) {
  return filled(Rectangle{}).frame({.width = width, .height = height});
}
View flexible() {
  return filled(Rectangle{});
}

TEST(Stack, ShowsItsChildrenOneAfterTheOther) {
  EXPECT_EQ(laidOut(hstack({.spacing = 4}, {text("ab"), text("c")}), {100, 30}), R"(
hstack (33,10) 34x10
  text "ab" (33,10) 20x10
  text "c" (57,10) 10x10
)");
  EXPECT_EQ(
      laidOut(vstack({.alignment = HorizontalAlignment::leading, .spacing = 4}, {text("ab"), text("c")}), {100, 30}),
      R"(
vstack (40,3) 20x24
  text "ab" (40,3) 20x10
  text "c" (40,17) 10x10
)");
}

TEST(Stack, AsksTheLeastFlexibleChildFirst) {
  // The text takes what it needs of its third, the shapes share what it leaves.
  EXPECT_EQ(laidOut(hstack({.spacing = 0}, {flexible(), text("ab"), flexible()}), {90, 10}), R"(
hstack (0,0) 90x10
  rectangle (0,0) 35x10
  text "ab" (35,0) 20x10
  rectangle (55,0) 35x10
)");
  // It gets no more than that, although the shapes could give way.
  EXPECT_EQ(laidOut(hstack({.spacing = 0}, {flexible(), text("abcd"), flexible()}), {90, 10}), R"(
hstack (0,0) 90x10
  rectangle (0,0) 30x10
  text "ab…" (30,0) 30x10
  rectangle (60,0) 30x10
)");
  // The first frame grows to 100 at the most and is offered a half; the second, without end, insists on its 100.
  const View overflowing =
      hstack({.spacing = 0}, {flexible().frame({.maxWidth = 100}), flexible().frame({.minWidth = 100})});
  EXPECT_EQ(laidOut(overflowing, {150, 10}), R"(
hstack (-12.5,0) 175x10
  flexibleFrame (-12.5,0) 75x10
    rectangle (-12.5,0) 75x10
  flexibleFrame (62.5,0) 100x10
    rectangle (62.5,0) 100x10
)");
}

TEST(Stack, DividesTheRemainderAgainAfterEachChild) {
  // 90 in three: the first takes 10 of its 30, the second 20 of (90 - 10) / 2, the last all that is left.
  EXPECT_EQ(laidOut(hstack({.spacing = 0}, {flexible().frame({.maxWidth = 10}), flexible().frame({.maxWidth = 20}),
                                            flexible().frame({.maxWidth = 70})}),
                    {90, 10}),
            R"(
hstack (0,0) 90x10
  flexibleFrame (0,0) 10x10
    rectangle (0,0) 10x10
  flexibleFrame (10,0) 20x10
    rectangle (10,0) 20x10
  flexibleFrame (30,0) 60x10
    rectangle (30,0) 60x10
)");
}

TEST(Stack, OfTwoEndlessChildrenAsksTheNeedierFirst) {
  EXPECT_EQ(laidOut(hstack({.spacing = 0}, {flexible(), flexible().frame({.minWidth = 80, .maxWidth = infinity})}),
                    {100, 10}),
            R"(
hstack (0,0) 100x10
  rectangle (0,0) 20x10
  flexibleFrame (20,0) 80x10
    rectangle (20,0) 80x10
)");
}

TEST(Stack, ServesHigherPrioritiesFirstButKeepsTheLeastLengthOfTheOthers) {
  EXPECT_EQ(
      laidOut(hstack({.spacing = 0}, {block(30, 10), text("abcdefghij").layoutPriority(1), flexible()}), {100, 10}),
      R"(
hstack (0,0) 100x10
  frame (0,0) 30x10
    rectangle (0,0) 30x10
  layoutPriority (30,0) 70x10
    text "abcdef…" (30,0) 70x10
  rectangle (100,0) 0x10
)");
  const struct {
    const char* what;
    View first;
    double width;  ///< that the first is left beside a greedy neighbour of priority 0
  } rows[] = {
      {"none", flexible(), 50},
      {"its own", flexible().layoutPriority(1), 100},
      {"seen through what draws and pins", flexible().layoutPriority(1).offset({.x = 1}).overlay(text("a")), 100},
      {"lost in padding", flexible().layoutPriority(1).padding(0), 50},
      {"lost in a frame", flexible().layoutPriority(1).frame({.maxHeight = 10}), 50},
      {"the outermost of two", flexible().layoutPriority(1).layoutPriority(-1), 0},
  };
  for (const auto& row : rows) {
    const ResolvedWidget widget = resolve(hstack({.spacing = 0}, {row.first, flexible()}), {});
    const PlacedElement placed = layout(widget.content, {.bounds = {.size = {100, 10}}}, support::FakeMeasurer());
    EXPECT_EQ(placed.children[0].frame.size.width, row.width) << row.what;
  }
}

TEST(Stack, TakesItsIdealLengthWhereNoneIsProposed) {
  const View row = hstack({.spacing = 5}, {text("ab"), flexible(), spacer()});
  EXPECT_EQ(answered(row, {}), (Size{48, 10}));
  EXPECT_EQ(answered(row, {.width = 0, .height = 0}), (Size{18, 10}));
  EXPECT_EQ(answered(row, {.width = infinity, .height = infinity}), (Size{infinity, infinity}));
  // Across, the children learn how high the row came out.
  EXPECT_EQ(laidOut(hstack({.spacing = 0}, {block(10, 40), flexible()}).fixedSize(), {100, 100}), R"(
fixedSize (40,30) 20x40
  hstack (40,30) 20x40
    frame (40,30) 10x40
      rectangle (40,30) 10x40
    rectangle (50,30) 10x40
)");
}

TEST(Stack, IsEmptyWithoutChildren) {
  EXPECT_EQ(answered(hstack({}, {}), {.width = 100, .height = 100}), (Size{0, 0}));
  EXPECT_EQ(answered(vstack({}, {emptyView(), group({})}), {.width = 100, .height = 100}), (Size{0, 0}));
}

TEST(Spacer, TakesWhatTheOthersLeave) {
  const struct {
    const char* what;
    View row;
    double width;
    double gap;  ///< between the two texts
  } rows[] = {
      {"room", hstack({}, {text("a"), spacer(), text("b")}), 100, 80},
      {"no room", hstack({}, {text("a"), spacer(), text("b")}), 10, 8},
      {"a least length of its own", hstack({}, {text("a"), spacer(20), text("b")}), 10, 20},
      {"none at all", hstack({}, {text("a"), spacer(0), text("b")}), 10, 0},
      {"explicit spacing on both sides", hstack({.spacing = 5}, {text("a"), spacer(), text("b")}), 10, 18},
  };
  for (const auto& row : rows) {
    const ResolvedWidget widget = resolve(row.row, {});
    const PlacedElement placed = layout(widget.content, {.bounds = {.size = {row.width, 10}}}, support::FakeMeasurer());
    const Rect before = placed.children[0].frame;
    EXPECT_EQ(placed.children[2].frame.origin.x - (before.origin.x + before.size.width), row.gap) << row.what;
  }
}

TEST(Spacer, StretchesAlongItsStackOnly) {
  EXPECT_EQ(laidOut(vstack({}, {text("a"), spacer()}), {100, 50}), R"(
vstack (45,0) 10x50
  text "a" (45,0) 10x10
  spacer (50,10) 0x40
)");
  EXPECT_EQ(answered(spacer(), {.width = 30, .height = 40}), (Size{30, 40}));
  EXPECT_EQ(answered(spacer(), {}), (Size{8, 8}));
  EXPECT_EQ(answered(zstack({}, {spacer()}), {.width = 30, .height = 40}), (Size{30, 40}));
  // A modifier between it and its stack changes nothing about that.
  const View modified =
      hstack({.spacing = 0}, {text("a"), spacer().frame({.maxWidth = 20}), spacer().layoutPriority(1)});
  EXPECT_EQ(answered(modified, {.width = 100, .height = 50}).height, 10);
}

}  // namespace
}  // namespace swiftui
