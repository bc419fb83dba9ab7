#include <gtest/gtest.h>

#include "pixels.hpp"
#include "rendering/renderer.hpp"

namespace rendering {
namespace {

using namespace swiftui;

std::string drawnFile(const View& view, Size size, double scale, double cornerRadius = 0) {
  const Renderer renderer("no resources");
  return renderer.png(
      alone(compose(resolve(view, {}), {.size = size, .cornerRadius = cornerRadius, .displayScale = scale}, renderer)),
      scale);
}

View coloured(const View& view, uikit::RGBA color) {
  return view.foregroundColor(color);
}
constexpr uikit::RGBA red{.red = 1};
constexpr uikit::RGBA halfBlue{.blue = 1, .alpha = 0.5};
constexpr Pixel nothing{0, 0, 0, 0};

TEST(PNG, HasThePixelsOfTheScene) {
  const Pixels opaque = decoded(drawnFile(coloured(filled(Rectangle{}), red), {10.5, 4}, 2));
  EXPECT_EQ(opaque.width, 21U);
  EXPECT_EQ(opaque.height, 8U);
  EXPECT_FALSE(opaque.hasAlpha);
  EXPECT_EQ(opaque.at(0, 0), (Pixel{255, 0, 0, 255}));
  EXPECT_EQ(opaque.at(20, 7), (Pixel{255, 0, 0, 255}));

  const View half =
      hstack({.spacing = 0}, {coloured(filled(Rectangle{}), halfBlue), coloured(filled(Rectangle{}), red).opacity(0)});
  const Pixels translucent = decoded(drawnFile(half, {4, 4}, 1));
  EXPECT_TRUE(translucent.hasAlpha);
  EXPECT_EQ(translucent.at(1, 1), (Pixel{0, 0, 255, 128}));
  EXPECT_EQ(translucent.at(3, 1), nothing);
}

TEST(PNG, AppliesOpacityToEachThingByItself) {
  const View square = coloured(filled(Rectangle{}), red);
  const Pixels pixels = decoded(drawnFile(zstack({}, {square, square}).opacity(0.5), {2, 2}, 1));
  EXPECT_NEAR(pixels.at(0, 0)[3], 191, 1);  // 1 - 0.5 * 0.5: the lower one shines through
}

TEST(PNG, MovesFramesToWholePixels) {
  const View narrow = coloured(filled(Rectangle{}), red).frame({.width = 1, .height = 1}).offset({.x = 0.3, .y = 0.3});
  const Pixels pixels = decoded(drawnFile(narrow, {3, 3}, 1));
  EXPECT_EQ(pixels.at(1, 1), (Pixel{255, 0, 0, 255}));
  EXPECT_EQ(pixels.at(2, 1), nothing);
  EXPECT_EQ(pixels.at(1, 2), nothing);
}

TEST(PNG, PaintsShapesAndTheirOutlines) {
  const Pixels circle = decoded(drawnFile(coloured(filled(Circle{}), red), {20, 20}, 1));
  EXPECT_EQ(circle.at(10, 10), (Pixel{255, 0, 0, 255}));
  EXPECT_EQ(circle.at(0, 0), nothing);

  const StrokeStyle pen{.lineWidth = 4};
  const View framed = coloured(strokedInside(Rectangle{}, pen), red).frame({.width = 20, .height = 20});
  const Pixels inside = decoded(drawnFile(framed, {24, 24}, 1));
  EXPECT_EQ(inside.at(1, 12), nothing);
  EXPECT_EQ(inside.at(2, 12), (Pixel{255, 0, 0, 255}));
  EXPECT_EQ(inside.at(5, 12), (Pixel{255, 0, 0, 255}));
  EXPECT_EQ(inside.at(6, 12), nothing);
  const Pixels centred =
      decoded(drawnFile(coloured(stroked(Rectangle{}, pen), red).frame({.width = 20, .height = 20}), {24, 24}, 1));
  EXPECT_EQ(centred.at(0, 12), (Pixel{255, 0, 0, 255}));
  EXPECT_EQ(centred.at(3, 12), (Pixel{255, 0, 0, 255}));
  EXPECT_EQ(centred.at(4, 12), nothing);
}

TEST(PNG, IsCutToTheOutline) {
  const Pixels pixels = decoded(drawnFile(coloured(filled(Rectangle{}), red), {40, 40}, 2, 10));
  EXPECT_TRUE(pixels.hasAlpha);
  for (const unsigned x : {0U, 79U}) {
    for (const unsigned y : {0U, 79U}) EXPECT_EQ(pixels.at(x, y), nothing);
  }
  EXPECT_EQ(pixels.at(40, 40), (Pixel{255, 0, 0, 255}));
  EXPECT_EQ(pixels.at(40, 0), (Pixel{255, 0, 0, 255}));
}

TEST(PNG, SetsTheBaselineWhereLayoutPutIt) {
  // The bottom of an "H" stands on the baseline, at 11.5 points of a line of 12 point letters, its top a capital height
  // above.
  const View letter = text("H")
                          .font(swiftui::system(12, FontWeight::bold))
                          .frame({.width = 20, .height = 20, .alignment = Alignment::topLeading});
  const Pixels pixels = decoded(drawnFile(letter, {20, 20}, 2));
  unsigned top = pixels.height;
  unsigned bottom = 0;
  for (unsigned y = 0; y < pixels.height; ++y) {
    for (unsigned x = 0; x < pixels.width; ++x) {
      if (pixels.at(x, y)[3] < 128) continue;
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  }
  EXPECT_EQ(bottom, 22U);
  EXPECT_NEAR(top, 23 - 2 * 12 * 0.727, 1);
}

}  // namespace
}  // namespace rendering
