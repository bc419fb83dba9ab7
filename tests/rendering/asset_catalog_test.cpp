#include "rendering/asset_catalog.hpp"

#include <cairo-svg.h>
#include <gtest/gtest.h>

#include "flat_file.hpp"
#include "support/temporary_folder.hpp"

namespace rendering {
namespace {

using uikit::ColorScheme;
using uikit::RGBA;

class AssetCatalogTest : public testing::Test {
 protected:
  AssetCatalogTest() {
    support::writeBytes(folder_ / "images/leaf@3x.png", flatFile(30, 15, {.green = 1}));
    support::writeBytes(folder_ / "images/leaf~dark@3x.png", flatFile(60, 30, {.blue = 1}));
    support::writeBytes(folder_ / "images/dot.png", flatFile(4, 4, {.red = 1}));
    support::writeBytes(folder_ / "images/broken@3x.png", "no picture");
    support::writeBytes(folder_ / "images/kite.svg", svg(R"(width="24" height="12")", "#f00"));
    support::writeBytes(folder_ / "images/kite~dark.svg", svg(R"(viewBox="3 4 48 36")", "#00f"));
    support::writeBytes(
        folder_ / "symbols/bar.svg",
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="10" height="10"><rect width="5" height="10"/></svg>)");
    support::writeBytes(folder_ / "symbols/broken.svg", "<svg");
    support::writeBytes(folder_ / "secret.png", flatFile(4, 4, {.red = 1}));
  }

  /// Its left half is filled.
  static std::string svg(const std::string& size, const std::string& color) {
    return R"(<svg xmlns="http://www.w3.org/2000/svg" )" + size + R"(><rect width="50%" height="100%" fill=")" + color +
           R"("/></svg>)";
  }

  Pixels drawn(const AssetKey& key, const Drawing& drawing) const { return rendering::drawn(catalog_, key, drawing); }

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
  EXPECT_EQ(catalog_.size({.name = "kite"}), (Size{24, 12}));
  EXPECT_EQ(catalog_.size({.name = "kite", .colorScheme = ColorScheme::dark}), (Size{48, 36}));
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

TEST_F(AssetCatalogTest, DrawsOutlinesInTheirOwnColoursCrispAtAnyScale) {
  for (const double side : {20.0, 8.0}) {
    const Pixels pixels = drawn({.name = "kite"}, {.frame = {{0, 0}, {side, side}}});
    const auto middle = static_cast<unsigned>(side / 2);
    EXPECT_EQ(pixels.at(middle - 1, middle), (Pixel{255, 0, 0, 255}));
    EXPECT_EQ(pixels.at(middle, middle), nothing);
  }
  const Pixels pale = drawn({.name = "kite"}, {.frame = {{0, 0}, {20, 20}}, .opacity = 0.5});
  EXPECT_EQ(pale.at(5, 10), (Pixel{255, 0, 0, 128}));
}

TEST_F(AssetCatalogTest, DrawsSymbolsAndTintedPicturesAsStencils) {
  const RGBA pink{.red = 1, .green = 0, .blue = 1, .alpha = 0.5};
  const Pixels symbol = drawn({.name = "bar", .isSymbol = true}, {.frame = {{0, 0}, {20, 20}}, .tint = pink});
  EXPECT_EQ(symbol.at(5, 10), (Pixel{255, 0, 255, 128}));
  EXPECT_EQ(symbol.at(15, 10), nothing);
  const Pixels picture = drawn({.name = "dot"}, {.frame = {{0, 0}, {20, 20}}, .tint = RGBA{.blue = 1}});
  EXPECT_EQ(picture.at(5, 10), (Pixel{0, 0, 255, 255}));
  const Pixels outlines = drawn({.name = "kite"}, {.frame = {{0, 0}, {20, 20}}, .tint = pink, .opacity = 0.5});
  EXPECT_EQ(outlines.at(5, 10), (Pixel{255, 0, 255, 64}));
  EXPECT_EQ(outlines.at(15, 10), nothing);
}

/// A part of a larger picture, to the right and below, twice as large.
void drawPart(cairo_surface_t* surface, const AssetCatalog& catalog, const AssetKey& key, const Drawing& drawing) {
  const CairoHandle cairo(cairo_create(surface));
  cairo_translate(cairo.get(), 4, 6);
  cairo_rectangle(cairo.get(), 0, 0, 14, 14);
  cairo_clip(cairo.get());
  cairo_scale(cairo.get(), 2, 2);
  catalog.draw(cairo.get(), key, drawing);
}

TEST_F(AssetCatalogTest, FilesOfOutlinesHaveEveryPictureInItsPlace) {
  const swiftui::Rect frame{{1, 1}, {6, 4}};
  const RGBA teal{.red = 0, .green = 0.5, .blue = 0.5};
  const struct {
    AssetKey key;
    Drawing drawing;
  } rows[] = {
      {{.name = "kite"}, {.frame = frame}},
      {{.name = "kite"}, {.frame = frame, .opacity = 0.5}},
      {{.name = "kite"}, {.frame = frame, .tint = teal}},
      {{.name = "dot"}, {.frame = frame, .tint = teal, .opacity = 0.5}},
      {{.name = "bar", .isSymbol = true}, {.frame = frame, .tint = teal}},
  };
  for (const auto& [key, drawing] : rows) {
    const SurfaceHandle expected(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 20, 20));
    drawPart(expected.get(), catalog_, key, drawing);

    std::string file;
    const auto append = [](void* bytes, const unsigned char* data, unsigned length) {
      static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
      return CAIRO_STATUS_SUCCESS;
    };
    const SurfaceHandle outlines(cairo_svg_surface_create_for_stream(append, &file, 20, 20));
    cairo_svg_surface_set_document_unit(outlines.get(), CAIRO_SVG_UNIT_PX);
    drawPart(outlines.get(), catalog_, key, drawing);
    cairo_surface_finish(outlines.get());
    const auto reread = pictureOfSVG(file);
    ASSERT_NE(reread, nullptr) << file;
    const SurfaceHandle found(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 20, 20));
    reread->draw(CairoHandle(cairo_create(found.get())).get(), {.frame = {{0, 0}, {20, 20}}});

    const Pixels one = decoded(encodePNG(expected.get()));
    const Pixels other = decoded(encodePNG(found.get()));
    EXPECT_NE(one.at(7, 10), nothing);
    for (const unsigned x : {0U, 3U, 7U, 10U, 14U, 17U}) {
      for (unsigned y = 0; y < 20; y += 2) {
        for (const std::size_t channel : {0U, 1U, 2U, 3U}) {
          EXPECT_NEAR(one.at(x, y)[channel], other.at(x, y)[channel], 2) << key.name << ' ' << x << ' ' << y;
        }
      }
    }
  }
}

}  // namespace
}  // namespace rendering
