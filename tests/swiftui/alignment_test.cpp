#include <gtest/gtest.h>

#include "laid_out.hpp"

namespace swiftui {
namespace {

/// The baseline at 0.8 of the font's size, the line as high as the size.
FontMetrics growing(const Font& font) {
  return {.ascent = 0.8 * font.size, .descent = 0.2 * font.size, .capHeight = 0.7 * font.size};
}

std::vector<double> tops(VerticalAlignment alignment, std::vector<View> children) {
  const ResolvedWidget widget = resolve(hstack({.alignment = alignment, .spacing = 0}, std::move(children)), {});
  support::FakeMeasurer measurer;
  measurer.metrics = growing;
  const PlacedElement placed = layout(widget.content, {.bounds = {.size = {100, 100}}}, measurer);
  std::vector<double> result;
  for (const PlacedElement& child : placed.children) result.push_back(child.frame.origin.y - placed.frame.origin.y);
  return result;
}

TEST(VerticalAlignment, IsTheLineOnWhichARowStands) {
  const View large = text("a").font(system(20));
  const View small = text("b").font(system(10));
  const View box = filled(Rectangle{}).frame({.width = 5, .height = 10});
  using Tops = std::vector<double>;
  EXPECT_EQ(tops(VerticalAlignment::top, {large, small, box}), (Tops{0, 0, 0}));
  EXPECT_EQ(tops(VerticalAlignment::center, {large, small, box}), (Tops{0, 5, 5}));
  EXPECT_EQ(tops(VerticalAlignment::bottom, {large, small, box}), (Tops{0, 10, 10}));
  // The baselines stand at 16 and 8; the box has its own at its bottom.
  EXPECT_EQ(tops(VerticalAlignment::firstTextBaseline, {large, small, box}), (Tops{0, 8, 6}));
  const View twoLines = vstack({.spacing = 0}, {small, small});
  EXPECT_EQ(tops(VerticalAlignment::firstTextBaseline, {large, twoLines}), (Tops{0, 8}));
  EXPECT_EQ(tops(VerticalAlignment::lastTextBaseline, {large, twoLines}), (Tops{2, 0}));
  EXPECT_EQ(tops(VerticalAlignment::firstTextBaseline, {large, small.padding(3)}), (Tops{0, 5}));
  EXPECT_EQ(tops(VerticalAlignment::lastTextBaseline, {large, zstack({}, {small, box})}), (Tops{0, 8}));
}

TEST(HorizontalAlignment, IsTheLineAlongWhichAColumnStands) {
  const struct {
    HorizontalAlignment alignment;
    double left;
  } rows[] = {
      {HorizontalAlignment::leading, 0}, {HorizontalAlignment::center, 15}, {HorizontalAlignment::trailing, 30}};
  for (const auto& row : rows) {
    const View column = vstack({.alignment = row.alignment, .spacing = 0}, {text("abcd"), text("a")});
    const ResolvedWidget widget = resolve(column, {});
    const PlacedElement placed = layout(widget.content, {.bounds = {.size = {40, 20}}}, support::FakeMeasurer());
    EXPECT_EQ(placed.children[1].frame.origin.x, row.left);
  }
}

}  // namespace
}  // namespace swiftui
