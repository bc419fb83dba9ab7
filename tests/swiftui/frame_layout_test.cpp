#include <gtest/gtest.h>

#include "laid_out.hpp"

namespace swiftui {
namespace {

View shape() {
  return filled(Rectangle{});
}
View text40() {
  return text("abcd");
}

TEST(Frame, AnswersProposalsByItsLimits) {
  const FixedFrame infinite{.width = infinity, .height = -5};
  const struct {
    const char* what;
    View view;
    ProposedSize proposal;
    Size wanted;
  } rows[] = {
      {"fixed", shape().frame({.width = 30, .height = 20}), {100, 100}, {30, 20}},
      {"fixed in one direction", shape().frame({.width = 30}), {100, 100}, {30, 100}},
      {"fixed around what is larger", text40().frame({.width = 10, .height = 5}), {100, 100}, {10, 5}},
      {"a fixed length that is none is left out", shape().frame(infinite), {100, 90}, {100, 90}},
      {"maxWidth fills the proposal", text40().frame({.maxWidth = infinity}), {100, 50}, {100, 10}},
      {"maxWidth caps it", text40().frame({.maxWidth = 60}), {100, 50}, {60, 10}},
      {"maxWidth below the proposal and the content", text40().frame({.maxWidth = 20}), {100, 50}, {20, 20}},
      {"maxWidth without a proposal is the content's", text40().frame({.maxWidth = infinity}), {}, {40, 10}},
      {"minWidth keeps a large content", text40().frame({.minWidth = 30}), {100, 50}, {40, 10}},
      {"minWidth raises a small one", text40().frame({.minWidth = 60}), {100, 50}, {60, 10}},
      {"minWidth wins over a small proposal", shape().frame({.minWidth = 60}), {20, 50}, {60, 50}},
      {"both clamp the proposal", text40().frame({.minWidth = 10, .maxWidth = 80}), {100, 50}, {80, 10}},
      {"the lower limit wins", text40().frame({.minWidth = 90, .maxWidth = 80}), {100, 50}, {90, 10}},
      {"the ideal where nothing is proposed", shape().frame({.idealWidth = 33, .idealHeight = 44}), {}, {33, 44}},
      {"the ideal is clamped", shape().frame({.idealWidth = 33, .maxWidth = 20}), {}, {20, 10}},
      {"an endless proposal",
       shape().frame({.maxWidth = 50, .maxHeight = infinity}),
       {infinity, infinity},
       {50, infinity}},
      {"limits that are no lengths are left out",
       shape().frame({.minWidth = infinity, .idealWidth = -infinity}),
       {70, 50},
       {70, 50}},
  };
  for (const auto& row : rows) EXPECT_EQ(answered(row.view, row.proposal), row.wanted) << row.what;
}

TEST(Frame, AlignsItsContentWhichMayStickOut) {
  const struct {
    Alignment alignment;
    Point wanted;
  } rows[] = {
      {Alignment::center, {30, 20}},
      {Alignment::leading, {0, 20}},
      {Alignment::topLeading, {0, 0}},
      {{.horizontal = HorizontalAlignment::trailing, .vertical = VerticalAlignment::bottom}, {60, 40}},
  };
  const auto originIn = [](Size size, Alignment alignment) {
    const View framed =
        text40().fixedSize().frame({.width = size.width, .height = size.height, .alignment = alignment});
    const ResolvedWidget widget = resolve(framed, {});
    const PlacedElement placed = layout(widget.content, {.bounds = {.size = size}}, support::FakeMeasurer());
    return placed.children[0].frame.origin;
  };
  for (const auto& row : rows) EXPECT_EQ(originIn({100, 50}, row.alignment), row.wanted);
  EXPECT_EQ(originIn({20, 4}, Alignment::center), (Point{-10, -3}));
  EXPECT_EQ(originIn({20, 4}, Alignment::topLeading), (Point{0, 0}));
}

TEST(Padding, SurroundsItsContent) {
  EXPECT_EQ(laidOut(text40().padding({.top = 1, .leading = 2, .bottom = 3, .trailing = 4}), {100, 50}), R"(
padding (27,18) 46x14
  text "abcd" (29,19) 40x10
)");
  EXPECT_EQ(answered(shape().padding(10), {.width = 15, .height = 100}), (Size{20, 100}));
  EXPECT_EQ(answered(shape().padding(10), {}), (Size{30, 30}));
  EXPECT_EQ(answered(text("a").padding(-20), {.width = 100, .height = 100}), (Size{0, 0}));
}

TEST(FixedSize, IsTheIdealSizeInItsDirections) {
  const View shown = text("abcd efgh");
  EXPECT_EQ(answered(shown.fixedSize(), {.width = 50, .height = 10}), (Size{90, 10}));
  EXPECT_EQ(answered(shown.fixedSize(false, true), {.width = 50, .height = 10}), (Size{40, 20}));
  EXPECT_EQ(answered(shown.fixedSize(true, false), {.width = 50, .height = 10}), (Size{90, 10}));
}

}  // namespace
}  // namespace swiftui
