#include <cairo.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "rendering/asset_catalog.hpp"
#include "rendering/cairo_handles.hpp"

namespace {

using rendering::AssetCatalog;
using rendering::AssetKey;
using uikit::ColorScheme;

/// A picture as it is drawn, row by row: premultiplied, alpha in the highest byte.
using Drawn = std::vector<std::uint32_t>;

Drawn drawn(const AssetKey& key, int side, std::optional<uikit::RGBA> tint = std::nullopt) {
  static const AssetCatalog catalog(MIRUNE_SHARE);
  const rendering::SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, side, side));
  const rendering::CairoHandle cairo(cairo_create(surface.get()));
  const double length = side;
  catalog.draw(cairo.get(), key, {.frame = {{0, 0}, {length, length}}, .tint = tint});
  EXPECT_EQ(cairo_status(cairo.get()), CAIRO_STATUS_SUCCESS) << key.name;
  cairo_surface_flush(surface.get());
  // A row of whole pixels needs no padding.
  const auto* pixels = reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(surface.get()));
  return {pixels, pixels + static_cast<std::ptrdiff_t>(side) * side};
}

int alphaOf(std::uint32_t pixel) {
  return static_cast<int>(pixel >> 24U);
}

/// How far two pixels are apart, in the channel that differs most.
int distance(std::uint32_t one, std::uint32_t other) {
  int most = 0;
  for (unsigned shift = 0; shift < 32; shift += 8) {
    most = std::max(most, std::abs(static_cast<int>(one >> shift & 0xFFU) - static_cast<int>(other >> shift & 0xFFU)));
  }
  return most;
}

/// The names of the pictures that are drawn by hand.
std::vector<std::string> names(const std::string& start) {
  std::vector<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(MIRUNE_SHARE "/images")) {
    const std::string name = entry.path().stem().string();
    if (entry.path().extension() == ".svg" && name.starts_with(start)) found.push_back(name);
  }
  std::ranges::sort(found);
  return found;
}

constexpr int side = 30;

TEST(Pictures, AreVisibleAndHaveClearCorners) {
  for (const std::string& name : names("")) {
    const Drawn picture = drawn({.name = name}, side);
    EXPECT_GT(std::ranges::count_if(picture, [](auto pixel) { return alphaOf(pixel) > 127; }), side * side / 4) << name;
    for (const std::size_t corner : {0, side - 1, side * (side - 1), side * side - 1}) {
      EXPECT_EQ(alphaOf(picture[corner]), 0) << name;
    }
  }
  EXPECT_NE(drawn({.name = "calendar_today"}, side),
            drawn({.name = "calendar_today", .colorScheme = ColorScheme::dark}, side));
}

TEST(Pictures, CatsHaveFacesOfTheirOwn) {
  const std::vector<std::string> cats = names("cat-circle_");
  EXPECT_GE(cats.size(), 16U);
  std::vector<Drawn> pictures;
  for (const std::string& cat : cats) pictures.push_back(drawn({.name = cat}, side));
  const auto different = [](const Drawn& one, const Drawn& other, int least) {
    int count = 0;
    for (std::size_t index = 0; index < one.size(); ++index) count += distance(one[index], other[index]) >= least;
    return count;
  };
  for (std::size_t one = 0; one < cats.size(); ++one) {
    for (std::size_t other = one + 1; other < cats.size(); ++other) {
      EXPECT_GE(different(pictures[one], pictures[other], 48), 40) << cats[one] << " looks like " << cats[other];
    }
  }
}

TEST(Pictures, ACatReadsOnADarkGround) {
  // Light fur beside dark lines.
  for (const std::string& cat : names("cat-circle_")) {
    const Drawn picture = drawn({.name = cat}, side);
    const auto count = [&](int from, int to) {
      return std::ranges::count_if(picture, [&](std::uint32_t pixel) {
        const int green = static_cast<int>(pixel >> 8U & 0xFFU);
        return alphaOf(pixel) == 255 && from <= green && green <= to;
      });
    };
    EXPECT_GE(count(200, 255), side * side / 5) << cat;
    EXPECT_GE(count(0, 110), cat == "cat-circle_placeholder" ? 0 : side * side / 20) << cat;
  }
}

TEST(Pictures, TheBlobTakesAnyTint) {
  for (const int length : {side, 45, 135}) {
    const Drawn blob = drawn({.name = "moodbgnew"}, length, uikit::RGBA{.red = 0.2, .green = 0.6, .blue = 1});
    const auto at = [&](int x, int y) { return blob[static_cast<std::size_t>(y * length + x)]; };
    for (const int place : {length / 4, length / 2, length * 3 / 4}) EXPECT_EQ(at(place, place), 0xFF3399FFU);
    EXPECT_EQ(at(0, 0), 0U);
    EXPECT_EQ(at(length - 1, length - 1), 0U);
    EXPECT_LT(alphaOf(at(length / 2, 0)), 128) << "a soft edge";
  }
  EXPECT_EQ(alphaOf(drawn({.name = "moodbgnew"}, side)[side * side / 2 + side / 2]), 255);
}

TEST(Pictures, TheDemosOwnIconMayBeDrawn) {
  const AssetCatalog nothing{"/nowhere"};
  const std::filesystem::path icons = MIRUNE_SHARE "/demo/icons";
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(icons)) {
    const swiftui::Size size = nothing.size({.name = entry.path().stem().string(), .folder = icons});
    EXPECT_EQ(size, (swiftui::Size{40, 40})) << entry.path();
    ++count;
  }
  EXPECT_GE(count, 1);
}

TEST(Pictures, OfTheDemosMoodsAreThere) {
  std::ifstream file(MIRUNE_SHARE "/demo/moods.json");
  const nlohmann::json moods = nlohmann::json::parse(file, nullptr, false);
  ASSERT_TRUE(moods.is_object());
  for (const auto& mood : moods) {
    const std::string icon = mood.at("icon").get<std::string>() + ".svg";
    EXPECT_TRUE(std::filesystem::exists(MIRUNE_SHARE "/images/" + icon) ||
                std::filesystem::exists(MIRUNE_SHARE "/demo/icons/" + icon))
        << icon;
  }
}

}  // namespace
