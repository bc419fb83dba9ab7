#include <gtest/gtest.h>

#include "laid_out.hpp"

namespace swiftui {
namespace {

View block(double width, double height) {
  return filled(Rectangle{}).frame({.width = width, .height = height});
}

TEST(Layer, IsProposedTheSizeOfTheContentAndChangesNothingOfIt) {
  EXPECT_EQ(
      laidOut(text("abcd").background(filled(Rectangle{})).overlay(block(60, 4), Alignment::topLeading), {100, 50}), R"(
overlay (30,20) 40x10
  background (30,20) 40x10
    rectangle (30,20) 40x10
    text "abcd" (30,20) 40x10
  frame (30,20) 60x4
    rectangle (30,20) 60x4
)");
}

TEST(Layer, OfAGroupIsOneOfEachMemberAndOfNothingNone) {
  EXPECT_EQ(laidOut(hstack({.spacing = 2}, {group({text("a"), text("b")}).background(filled(Circle{}))}), {100, 10}),
            R"(
hstack (39,0) 22x10
  background (39,0) 10x10
    circle (39,0) 10x10
    text "a" (39,0) 10x10
  background (51,0) 10x10
    circle (51,0) 10x10
    text "b" (51,0) 10x10
)");
  EXPECT_EQ(answered(hstack({.spacing = 5}, {text("a"), emptyView().overlay(text("b"))}), {}), (Size{10, 10}));
}

TEST(ZStack, IsAsLargeAsItsLargestChildAndOffersThatToAll) {
  EXPECT_EQ(laidOut(zstack(Alignment::topLeading, {block(20, 10), block(10, 30), text("a")}).fixedSize(), {100, 50}),
            R"(
fixedSize (40,10) 20x30
  zstack (40,10) 20x30
    frame (40,10) 20x10
      rectangle (40,10) 20x10
    frame (40,10) 10x30
      rectangle (40,10) 10x30
    text "a" (40,10) 10x10
)");
  // Only the children of the highest priority decide.
  EXPECT_EQ(answered(zstack({}, {block(90, 90), text("ab").layoutPriority(1)}), {.width = 100, .height = 100}),
            (Size{20, 10}));
}

TEST(Offset, MovesWhatIsDrawnAndNotTheLayout) {
  EXPECT_EQ(laidOut(hstack({.spacing = 0}, {text("a").offset({.x = 3, .y = -2}), text("b")}), {20, 10}), R"(
hstack (0,0) 20x10
  offset (0,0) 10x10
    text "a" (3,-2) 10x10
  text "b" (10,0) 10x10
)");
}

TEST(RightToLeft, MirrorsPlacesAndOffsets) {
  const View row = hstack({.spacing = 2}, {text("ab").padding({.leading = 5}), block(10, 20).offset({.x = 3})})
                       .frame({.maxWidth = infinity, .alignment = Alignment::leading});
  EXPECT_EQ(laidOut(row, {100, 20}, LayoutDirection::rightToLeft), R"(
flexibleFrame (0,0) 100x20
  hstack (63,0) 37x20
    padding (75,5) 25x10
      text "ab" (75,5) 20x10
    offset (63,0) 10x20
      frame (60,0) 10x20
        rectangle (60,0) 10x20
)");
  EXPECT_EQ(laidOut(text("abcd").overlay(text("a"), Alignment::topLeading), {40, 10}, LayoutDirection::rightToLeft), R"(
overlay (0,0) 40x10
  text "abcd" (0,0) 40x10
  text "a" (30,0) 10x10
)");
}

}  // namespace
}  // namespace swiftui
