#include "rendering/asset_catalog.hpp"

#include <gtest/gtest.h>

#include "pixels.hpp"
#include "rendering/cairo_handles.hpp"
#include "rendering/png_encoder.hpp"
#include "support/temporary_folder.hpp"

namespace rendering {
namespace {

using uikit::ColorScheme;
using uikit::RGBA;

/// A PNG file of one colour.
std::string flatFile(int width, int height, RGBA color) {
  const SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  const CairoHandle cairo(cairo_create(surface.get()));
  cairo_set_source_rgba(cairo.get(), color.red, color.green, color.blue, color.alpha);
  cairo_paint(cairo.get());
  return encodePNG(surface.get());
}

class AssetCatalogTest : public testing::Test {
 protected:
  AssetCatalogTest() {
    support::writeBytes(folder_ / "images/leaf@3x.png", flatFile(30, 15, {.green = 1}));
    support::writeBytes(folder_ / "images/leaf~dark@3x.png", flatFile(60, 30, {.blue = 1}));
    support::writeBytes(folder_ / "images/dot.png", flatFile(4, 4, {.red = 1}));
    support::writeBytes(folder_ / "images/broken@3x.png", "no picture");
    support::writeBytes(
        folder_ / "symbols/bar.svg",
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="10" height="10"><rect width="5" height="10"/></svg>)");
    support::writeBytes(folder_ / "symbols/broken.svg", "<svg");
    support::writeBytes(folder_ / "secret.png", flatFile(4, 4, {.red = 1}));
  }

  Pixels drawn(const AssetKey& key, const AssetCatalog::Drawing& drawing) const {
    const SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 20, 20));
    const CairoHandle cairo(cairo_create(surface.get()));
    catalog_.draw(cairo.get(), key, drawing);
    EXPECT_EQ(cairo_status(cairo.get()), CAIRO_STATUS_SUCCESS);
    return decoded(encodePNG(surface.get()));
  }

  support::TemporaryFolder folder_;
  AssetCatalog catalog_{folder_.path()};
};

constexpr Pixel nothing{0, 0, 0, 0};

TEST_F(AssetCatalogTest, KnowsSizesInPoints) {
  using swiftui::Size;
  EXPECT_EQ(catalog_.size({.name = "leaf"}), (Size{10, 5}));
  EXPECT_EQ(catalog_.size({.name = "leaf", .colorScheme = ColorScheme::dark}), (Size{20, 10}));
  EXPECT_EQ(catalog_.size({.name = "dot"}), (Size{4, 4}));
  EXPECT_EQ(catalog_.size({.name = "dot", .colorScheme = ColorScheme::dark}), (Size{4, 4}));
  EXPECT_EQ(catalog_.size({.name = "bar", .isSymbol = true}), (Size{10, 10}));
}

TEST_F(AssetCatalogTest, DrawsNothingForWhatIsNoAsset) {
  const AssetKey keys[] = {
      {.name = "none"},      {.name = ""},
      {.name = "broken"},    {.name = "broken", .isSymbol = true},
      {.name = "../secret"}, {.name = "/etc/logo"},
      {.name = ".hidden"},   {.name = std::string("dot\0x", 5)},
      {.name = "bar"},       {.name = "leaf", .isSymbol = true},
  };
  for (const AssetKey& key : keys) {
    EXPECT_EQ(catalog_.size(key), swiftui::Size{}) << key.name;
    EXPECT_EQ(drawn(key, {.frame = {{0, 0}, {20, 20}}}).at(1, 1), nothing) << key.name;
  }
}

TEST_F(AssetCatalogTest, StretchesAPictureIntoItsFrame) {
  const Pixels light = drawn({.name = "leaf"}, {.frame = {{5, 5}, {10, 10}}});
  EXPECT_EQ(light.at(5, 5), (Pixel{0, 255, 0, 255}));
  EXPECT_EQ(light.at(14, 14), (Pixel{0, 255, 0, 255}));
  EXPECT_EQ(light.at(4, 5), nothing);
  EXPECT_EQ(light.at(15, 5), nothing);
  const Pixels dark =
      drawn({.name = "leaf", .colorScheme = ColorScheme::dark}, {.frame = {{0, 0}, {20, 20}}, .opacity = 0.5});
  EXPECT_EQ(dark.at(10, 10), (Pixel{0, 0, 255, 128}));
}

TEST_F(AssetCatalogTest, DrawsSymbolsAndTintedPicturesAsStencils) {
  const RGBA pink{.red = 1, .green = 0, .blue = 1, .alpha = 0.5};
  const Pixels symbol = drawn({.name = "bar", .isSymbol = true}, {.frame = {{0, 0}, {20, 20}}, .tint = pink});
  EXPECT_EQ(symbol.at(5, 10), (Pixel{255, 0, 255, 128}));
  EXPECT_EQ(symbol.at(15, 10), nothing);
  const Pixels picture = drawn({.name = "dot"}, {.frame = {{0, 0}, {20, 20}}, .tint = RGBA{.blue = 1}});
  EXPECT_EQ(picture.at(5, 10), (Pixel{0, 0, 255, 255}));
}

}  // namespace
}  // namespace rendering
