#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "every_widget.hpp"
#include "lists/header_badge.hpp"
#include "rendering/pixels.hpp"
#include "styling/backgrounds.hpp"
#include "styling/hex_color.hpp"
#include "styling/theme.hpp"

namespace mirune {
namespace {

using rendering::DrawText;
using swiftui::View;

constexpr double scale = 2;

double linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const std::array<double, 3>& rgb) {
  return 0.2126 * linear(rgb[0]) + 0.7152 * linear(rgb[1]) + 0.0722 * linear(rgb[2]);
}

/// The contrast of an ink over one pixel, 1 to 21.
double contrast(const rendering::Ink& ink, const rendering::Pixel& behind) {
  const double alpha = ink.opacity * ink.color.alpha;
  const std::array<double, 3> ground{behind[0] / 255.0, behind[1] / 255.0, behind[2] / 255.0};
  const std::array<double, 3> color{ink.color.red, ink.color.green, ink.color.blue};
  std::array<double, 3> seen{};
  for (std::size_t i = 0; i < 3; ++i) seen[i] = alpha * color[i] + (1 - alpha) * ground[i];
  const auto [darker, lighter] = std::minmax({luminance(seen), luminance(ground)});
  return (lighter + 0.05) / (darker + 0.05);
}

/// What is painted behind the texts.
rendering::Pixels groundOf(rendering::Scene scene) {
  std::erase_if(scene.drawn, [](const auto& command) { return std::holds_alternative<DrawText>(command); });
  return rendering::decoded(realRenderer().png(rendering::alone(std::move(scene)), scale));
}

/// The contrast of a text over the part of its ground where it is weakest, but for a twentieth of specks.
double contrast(const DrawText& text, const rendering::Pixels& ground) {
  std::vector<double> ratios;
  const auto pixel = [](double points) { return static_cast<unsigned>(std::max(0.0, std::floor(points * scale))); };
  const auto& [origin, size] = text.frame;
  for (unsigned y = pixel(origin.y); y < std::min(ground.height, pixel(origin.y + size.height)); ++y) {
    for (unsigned x = pixel(origin.x); x < std::min(ground.width, pixel(origin.x + size.width)); ++x) {
      ratios.push_back(contrast(text.ink, ground.at(x, y)));
    }
  }
  const auto weak = ratios.begin() + std::ssize(ratios) / 20;
  std::ranges::nth_element(ratios, weak);
  return *weak;
}

/// What a text needs: less where it is large, or bold and nearly so.
double neededBy(const DrawText& text) {
  const double size = text.style.font.size * text.scale;
  const bool isBold = text.style.font.weight >= swiftui::FontWeight::bold;
  return size >= 18 || (isBold && size >= 14) ? 3 : 4.5;
}

/// Texts whose colour is settled, at least as strong as this; that of others is ours to mend.
const struct {
  const char* kind;
  const char* color;
  int theme;
  double ratio;
} settled[] = {
    // The chosen day of the chart, in the accent colour at opacity .9.
    {"moods", "#E96E9E", 0, 2.2},
    {"moods", "#E96E9E", 1, 4.1},
};

double leastFor(const std::string& name, const DrawText& text, int theme) {
  for (const auto& one : settled) {
    if (name.starts_with(std::string(one.kind) + " ") && one.theme == theme &&
        text.ink.color == sRGBColorOfHex(one.color)) {
      return one.ratio;
    }
  }
  return neededBy(text);
}

/// Checks every text of a widget.
void expectReadable(const std::string& name, const rendering::Scene& scene, int theme) {
  const rendering::Pixels ground = groundOf(scene);
  bool hasText = false;
  for (const auto& command : scene.drawn) {
    const auto* text = std::get_if<DrawText>(&command);
    if (text == nullptr) continue;
    const double ratio = contrast(*text, ground);
    EXPECT_GE(ratio, leastFor(name, *text, theme)) << name << ", theme " << theme << ": " << text->shown;
    hasText = true;
  }
  EXPECT_TRUE(hasText) << name;
}

// What stands on the lock screen has no ground of its own: the system draws it over the wallpaper.
TEST(Contrast, OfTextsOnPaperIsEnough) {
  for (const int theme : {0, 1}) {
    FilledPlanner planner(theme);
    auto platform = planner.platform();
    // The planner's theme decides, not the system's.
    platform.appearance = theme == 1 ? uikit::ColorScheme::light : uikit::ColorScheme::dark;
    for (const auto& [name, family, scene] : everyWidget(platform)) {
      if (!swiftui::isAccessory(family)) expectReadable(name, scene, theme);
    }
  }
}

TEST(Contrast, OfTheDayOnEveryBadgeIsEnough) {
  constexpr int lightBadges = 104;
  for (const int theme : {0, 1}) {
    FilledPlanner planner(theme);
    const auto platform = planner.platform();
    for (int image = 0; image < lightBadges; ++image) {
      const View badge = HeaderBadge{.image = image, .date = platform.now};
      const View onPaper = AddBackgroundModifier{.content = badge.colorScheme(plannerTheme(platform))};
      expectReadable("badge " + std::to_string(image), sceneOfView(onPaper, platform), theme);
    }
  }
}

}  // namespace
}  // namespace mirune
