#include "wash.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "outline.hpp"

namespace artwork {

namespace {

constexpr int width = 120, height = 108;

/// Pigment at one place: how much, and which share of it is the bleeding one.
struct Pigment {
  double load = 0;
  double bled = 0;
};

/// One pass of the brush, left to dry before the next.
struct Layer {
  Outline outline;
  double load = 0;
  double bled = 0;
  double rim = 0;       ///< extra load where the water's edge left its pigment
  double dampness = 0;  ///< pixels over which the edge fades where the paper was wet
  std::uint64_t seed = 0;

  Pigment at(double x, double y) const {
    const double depth = outline.depth(x, y);
    if (depth < -2) return {};
    const double damp = dampness * smoothStep(-0.25, 0.45, noise(seed, x / 38, y / 38));
    const double cover = smoothStep(-0.8, 0.8 + damp, depth);
    const double inside = std::max(depth, 0.0);
    const double pooling = 0.35 + 0.65 * smoothStep(-0.35, 0.45, noise(seed + 1, x / 26, y / 26));
    const double dryLine = pooling * (std::exp(-inside / 1.7) + 0.45 * std::exp(-inside / 6.5)) / (1 + damp / 4);
    const double flow = 1 + 0.34 * clouds(seed + 2, x / 42, y / 42, 3);
    return {.load = cover * (load * flow + rim * dryLine), .bled = bled};
  }
};

/// Water that ran back into drying paint: it washes a place out and pushes the pigment into a crinkled line around it.
struct Backrun {
  double x = 0;
  double y = 0;
  double radius = 0;
  double strength = 0;
  std::uint64_t seed = 0;

  double thins(double px, double py) const {
    const double crinkle = 3.2 * clouds(seed, px / 9, py / 9, 2) + 5 * noise(seed + 1, px / 24, py / 24);
    const double depth = radius - std::hypot(px - x, py - y) + crinkle;
    const double washedOut = smoothStep(0, 9, depth), line = std::exp(-std::pow((depth + 0.6) / 1.5, 2));
    return 1 - strength * (washedOut - 0.55 * line);
  }
};

/// Everything that chance decides about one dab.
class Dab {
 public:
  explicit Dab(std::uint64_t seed)
      : dice_(seed),
        layers_{layer({.left = 1.5, .top = 1.5, .width = width - 3, .height = height - 3}, 0.62, 0.05, 0.44, 4.5),
                layer(within(0.7, 0.88), 0.25, 0.3, 0.1, 16), layer(within(0.45, 0.7), 0.22, 0.85, 0, 30)},
        flowAngle_(dice_.between(0, 2 * std::numbers::pi)),
        bleedAngle_(flowAngle_ + dice_.between(-1.2, 1.2)),
        grain_(dice_.seed()),
        bleeding_(dice_.seed()) {
    const double angle = dice_.between(0, 2 * std::numbers::pi);
    backrun_ = {.x = width / 2.0 + 0.33 * width * std::cos(angle),
                .y = height / 2.0 + 0.33 * height * std::sin(angle),
                .radius = dice_.between(13, 24),
                .strength = dice_.between(0.1, 0.34),
                .seed = dice_.seed()};
  }

  Pigment at(double x, double y) const {
    Pigment sum;
    for (const Layer& layer : layers_) {
      const Pigment pass = layer.at(x, y);
      sum.load += pass.load;
      sum.bled += pass.load * pass.bled;
    }
    if (sum.load <= 0) return {};
    sum.bled /= sum.load;
    const double dx = x / width - 0.5, dy = y / height - 0.5;
    sum.bled +=
        1.1 * (dx * std::cos(bleedAngle_) + dy * std::sin(bleedAngle_)) + 0.5 * clouds(bleeding_, x / 45, y / 45, 3);
    const double sunk = 1 + 0.3 * (dx * std::cos(flowAngle_) + dy * std::sin(flowAngle_));
    const double grain = 1 + 0.07 * noise(grain_, x / 2.8, y / 2.8) + 0.06 * noise(grain_ + 1, x / 5.5, y / 5.5);
    sum.load *= sunk * grain * backrun_.thins(x, y);
    sum.bled = smoothStep(-0.15, 1.05, sum.bled);
    return sum;
  }

 private:
  /// A box that covers a share of the picture, somewhere in it.
  Box within(double least, double most) {
    const double across = width * dice_.between(least, most), down = height * dice_.between(least, most);
    return {.left = dice_.between(3, width - 3 - across),
            .top = dice_.between(3, height - 3 - down),
            .width = across,
            .height = down};
  }

  Layer layer(const Box& box, double load, double bled, double rim, double dampness) {
    return {.outline = Outline(dice_, box),
            .load = load * (1 + 0.12 * dice_.swing()),
            .bled = bled,
            .rim = rim * (1 + 0.35 * dice_.swing()),
            .dampness = dampness * (1 + 0.6 * dice_.swing()),
            .seed = dice_.seed()};
  }

  Dice dice_;
  std::array<Layer, 3> layers_;
  double flowAngle_;
  double bleedAngle_;
  std::uint64_t grain_;
  std::uint64_t bleeding_;
  Backrun backrun_;
};

/// A transparent pigment takes light away from white paper, as a colour filter would: twice the load, twice the
/// density. The result is the clear colour that gives the same look when it is laid over the paper.
Colour glazed(const Wash& wash, const Pigment& pigment) {
  const Colour paper = paperOf(Appearance::light);
  const auto left = [&](double Colour::* channel) {
    const auto density = [&](const Colour& colour) {
      return -std::log(std::min(1.0, colour.*channel / paper.*channel));
    };
    return std::exp(-pigment.load * std::lerp(density(wash.main), density(wash.bleed), pigment.bled));
  };
  const double red = left(&Colour::red), green = left(&Colour::green), blue = left(&Colour::blue);
  const double least = std::min({red, green, blue}), alpha = 1 - least;
  if (alpha <= 0) return {.alpha = 0};
  return {.red = paper.red * (red - least) / alpha,
          .green = paper.green * (green - least) / alpha,
          .blue = paper.blue * (blue - least) / alpha,
          .alpha = alpha};
}

/// A body colour covers dark paper instead; where much of it gathers it glows, in its own hue rather than chalkily.
Colour covering(const Wash& wash, const Pigment& pigment) {
  const Colour body = mix(wash.main, wash.bleed, pigment.bled);
  const double lift = (pigment.load < 1 ? 0.22 : 0.42) * (pigment.load - 1);
  const Colour glow{
      .red = std::pow(body.red, 0.6), .green = std::pow(body.green, 0.6), .blue = std::pow(body.blue, 0.6)};
  const Colour lit = mix(body, lift < 0 ? paperOf(Appearance::dark) : glow, std::min(0.28, std::abs(lift)));
  return {.red = lit.red, .green = lit.green, .blue = lit.blue, .alpha = 1 - std::exp(-2.6 * pigment.load)};
}

}  // namespace

Colour paperOf(Appearance appearance) {
  return appearance == Appearance::light ? colourFrom("#FBF7EF") : colourFrom("#211F26");
}

Picture painted(const Wash& wash) {
  const Dab dab(wash.seed);
  Picture picture(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const Pigment pigment = dab.at(x + 0.5, y + 0.5);
      picture.at(x, y) = wash.appearance == Appearance::light ? glazed(wash, pigment) : covering(wash, pigment);
    }
  }
  return picture;
}

}  // namespace artwork
