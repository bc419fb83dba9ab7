#include <gtest/gtest.h>

#include <vector>

#include "rendering/typography.hpp"
#include "support/fake_measurer.hpp"
#include "swiftui/layout_engine.hpp"

// What follows from the line box of the system font alone, without a glyph.

namespace rendering {
namespace {

using namespace swiftui;

std::unique_ptr<support::FakeMeasurer> systemMeasurer() {
  auto measurer = std::make_unique<support::FakeMeasurer>();
  measurer->metrics = [](const Font& font) { return systemFontMetrics(font.size); };
  return measurer;
}

TEST(SystemFont, HasTheLinesOfThePlatformAtEveryScale) {
  const struct {
    double size;
    double heights[3];    ///< of one line at 1x, 2x, 3x
    double baselines[2];  ///< at 2x, 3x
    double twoLines[2];   ///< at 2x, 3x
    double capHeight;
  } rows[] = {
      {8, {10, 10, 9.667}, {7.5, 7.667}, {19.5, 19.333}, 5.64},
      {9, {11, 11, 11}, {8.5, 8.667}, {21.5, 21.667}, 6.34},
      {10, {12, 12, 12}, {9.5, 9.667}, {24, 24}, 7.05},
      {11, {14, 13.5, 13.333}, {10.5, 10.333}, {26.5, 26.333}, 7.75},
      {12, {15, 14.5, 14.333}, {11.5, 11.333}, {29, 28.667}, 8.46},
      {13, {16, 16, 15.667}, {12.5, 12.333}, {31.5, 31.333}, 9.16},
      {14, {17, 17, 17}, {13.5, 13.333}, {33.5, 33.667}, 9.86},
      {14.5, {18, 17.5, 17.333}, {14, 13.667}, {35, 34.667}, 10.22},
      {16, {20, 19.5, 19.333}, {15, 15.333}, {38.5, 38.333}, 11.27},
      {17, {21, 20.5, 20.333}, {16, 16.333}, {41, 40.667}, 11.98},
  };
  const auto measurer = systemMeasurer();
  for (const auto& row : rows) {
    const Element one = resolve(text("a").font(swiftui::system(row.size)), {}).content;
    const Element two = resolve(text("a\nb").font(swiftui::system(row.size)), {}).content;
    for (int scale = 1; scale <= 3; ++scale) {
      LayoutEngine engine(*measurer, scale);
      EXPECT_NEAR(engine.measure(one, {}).size.height, row.heights[scale - 1], 0.001) << row.size << " @" << scale;
      if (scale == 1) continue;
      EXPECT_NEAR(*engine.measure(one, {}).firstBaseline, row.baselines[scale - 2], 0.001) << row.size << " @" << scale;
      EXPECT_NEAR(engine.measure(two, {}).size.height, row.twoLines[scale - 2], 0.001) << row.size << " @" << scale;
    }
    EXPECT_NEAR(systemFontMetrics(row.size).capHeight, row.capHeight, 0.006) << row.size;
  }
}

TEST(SystemFont, KeepsThePlatformsDistancesToOtherViews) {
  const struct {
    double size;
    double scale;
    double above;  ///< between a view and the text below it
    double below;  ///< between the text and a view below it
  } rows[] = {
      {8, 3, 2.93, 4.91},    {8, 2, 2.93, 4.91},  {9, 3, 3.50, 5.73},  {9, 2, 3.67, 5.90},   {10, 3, 3.75, 6.22},
      {10, 2, 3.91, 6.39},   {11, 3, 3.99, 6.71}, {11, 2, 4.15, 6.88}, {12, 3, 4.56, 7.53},  {12, 2, 4.39, 7.37},
      {13, 3, 4.80, 8.02},   {13, 2, 5.14, 8.35}, {14, 3, 5.38, 8.84}, {14, 2, 5.38, 8.84},  {14.5, 3, 5.50, 9.09},
      {14.5, 2, 5.50, 9.09}, {16, 3, 5.86, 9.82}, {16, 2, 5.86, 9.82}, {17, 3, 6.43, 10.64}, {17, 2, 6.60, 10.81},
  };
  const auto measurer = systemMeasurer();
  const View box = filled(Rectangle{}).frame({.width = 10, .height = 10});
  for (const auto& row : rows) {
    const View words = text("a").font(swiftui::system(row.size));
    const auto gap = [&](const View& first, const View& second) {
      const ResolvedWidget widget = resolve(vstack({}, {first, second}), {});
      const PlacedElement placed =
          layout(widget.content, {.bounds = {.size = {100, 100}}, .displayScale = row.scale}, *measurer);
      const Rect upper = placed.children[0].frame;
      return placed.children[1].frame.origin.y - upper.origin.y - upper.size.height;
    };
    EXPECT_NEAR(gap(box, words), row.above, 0.01) << row.size << " @" << row.scale;
    EXPECT_NEAR(gap(words, box), row.below, 0.01) << row.size << " @" << row.scale;
    EXPECT_NEAR(gap(words, words), 0, 1e-9) << row.size << " @" << row.scale;
  }
}

}  // namespace
}  // namespace rendering
