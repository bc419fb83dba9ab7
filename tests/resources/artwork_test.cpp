#include <cairo.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "lists/header_badge.hpp"

namespace {

using Rgb = std::array<double, 3>;

constexpr Rgb lightPaper{0xFB / 255.0, 0xF7 / 255.0, 0xEF / 255.0}, darkPaper{0x21 / 255.0, 0x1F / 255.0, 0x26 / 255.0};

struct Badge {
  std::string name;
  bool dark = false;
};

std::vector<Badge> badges() {
  std::ifstream table(MIRUNE_BADGES);
  std::vector<Badge> found;
  for (std::string line; std::getline(table, line);) {
    if (line.starts_with('#')) continue;
    std::istringstream row(line);
    std::string appearance, name;
    std::getline(row, appearance, '\t');
    std::getline(row, name, '\t');
    found.push_back({.name = name, .dark = appearance == "dark"});
  }
  return found;
}

/// A decoded picture, as Cairo stores it: premultiplied, alpha in the highest byte.
class Png {
 public:
  explicit Png(const std::string& name)
      : surface_(cairo_image_surface_create_from_png((MIRUNE_SHARE "/images/" + name + "@3x.png").c_str()),
                 &cairo_surface_destroy) {}

  bool decoded() const { return cairo_surface_status(surface_.get()) == CAIRO_STATUS_SUCCESS; }
  bool opaque() const { return cairo_image_surface_get_format(surface_.get()) == CAIRO_FORMAT_RGB24; }
  int width() const { return cairo_image_surface_get_width(surface_.get()); }
  int height() const { return cairo_image_surface_get_height(surface_.get()); }

  double alphaAt(int x, int y) const { return byteAt(x, y, 24); }
  Rgb over(const Rgb& paper, int x, int y) const {
    const double through = opaque() ? 0 : 1 - alphaAt(x, y);
    return {byteAt(x, y, 16) + through * paper[0], byteAt(x, y, 8) + through * paper[1],
            byteAt(x, y, 0) + through * paper[2]};
  }

 private:
  double byteAt(int x, int y, unsigned shift) const {
    const unsigned char* row = cairo_image_surface_get_data(surface_.get()) +
                               static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(surface_.get());
    return (reinterpret_cast<const std::uint32_t*>(row)[x] >> shift & 0xFFU) / 255.0;
  }

  std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface_;
};

/// Visits the part that the day number stands on, pixel by pixel.
void overMiddle(const Png& picture, const Rgb& paper, auto&& visit) {
  for (int y = picture.height() / 5; y < picture.height() * 4 / 5; ++y) {
    for (int x = picture.width() / 12; x < picture.width() * 11 / 12; ++x) visit(picture.over(paper, x, y));
  }
}

Rgb middleOf(const Png& picture, const Rgb& paper) {
  Rgb sum{};
  int count = 0;
  overMiddle(picture, paper, [&](const Rgb& one) {
    for (std::size_t channel = 0; channel < 3; ++channel) sum[channel] += one[channel];
    ++count;
  });
  for (double& channel : sum) channel /= count;
  return sum;
}

TEST(Artwork, BadgesDecodeAndReachTheirEdges) {
  for (const Badge& badge : badges()) {
    const Png picture(badge.name);
    ASSERT_TRUE(picture.decoded()) << badge.name;
    int left = picture.width(), right = 0, top = picture.height(), bottom = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.alphaAt(x, y) < 0.1) continue;
        left = std::min(left, x), right = std::max(right, x), top = std::min(top, y), bottom = std::max(bottom, y);
      }
    }
    EXPECT_GE(right - left, 0.9 * picture.width()) << badge.name;
    EXPECT_GE(bottom - top, 0.9 * picture.height()) << badge.name;
    EXPECT_EQ(picture.alphaAt(0, 0), 0) << badge.name << " has no clear corner";
  }
}

TEST(Artwork, BadgesStandOutFromThePaperAndFromTheDayBefore) {
  const auto distance = [](const Rgb& a, const Rgb& b) { return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]); };
  for (const bool dark : {false, true}) {
    const Rgb paper = dark ? darkPaper : lightPaper;
    Rgb before = paper;
    // One day more than the longest list has pictures, so that both lists start again.
    for (int day = 0; day <= 104; ++day) {
      const std::string name = mirune::badgeImageName(day, dark ? uikit::ColorScheme::dark : uikit::ColorScheme::light);
      const Png picture(name);
      ASSERT_TRUE(picture.decoded()) << name;
      const Rgb ground = middleOf(picture, paper);
      EXPECT_GE(distance(ground, paper), 0.18) << name;
      EXPECT_GE(distance(ground, before), 0.15) << name << " looks like the badge of the day before it";
      before = ground;
    }
  }
}

TEST(Artwork, PaperIsOpaqueAndCalm) {
  for (const bool dark : {false, true}) {
    SCOPED_TRACE(dark ? "dark" : "light");
    const Png sheet(dark ? "paper1new_widget~dark" : "paper1new_widget");
    ASSERT_TRUE(sheet.decoded());
    ASSERT_TRUE(sheet.opaque());
    const Rgb paper = dark ? darkPaper : lightPaper;
    double furthest = 0;
    int even = 0;
    for (int y = 0; y < sheet.height(); ++y) {
      for (int x = 0; x < sheet.width(); ++x) {
        const Rgb here = sheet.over(paper, x, y);
        even += here == paper;
        for (std::size_t channel = 0; channel < 3; ++channel) {
          furthest = std::max(furthest, std::abs(here[channel] - paper[channel]));
        }
      }
    }
    EXPECT_LE(furthest * 255, 3.5);
    EXPECT_GE(furthest * 255, 2) << "its fibres are gone";
    EXPECT_GE(even, sheet.width() * sheet.height() * 2 / 3) << "grain swells every picture that it lies behind";
  }
}

}  // namespace
