#include "paper.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "noise.hpp"

namespace artwork {

namespace {

constexpr int side = 256;
constexpr double oneLevel = 1.0 / 255;
constexpr double mostLevels = 3;

/// What a kind of fibre looks like; lengths in pixels, tones in levels.
struct Kind {
  int count = 0;
  double shortest = 0;
  double longest = 0;
  double thickness = 0;  ///< from its middle to where it has lost most of its tone
  double curl = 0;       ///< most that it turns in a pixel
  double faintest = 0;
  double strongest = 0;
};

// Felt gives the sheet its body, hairs its character; pale hairs keep the middle tone where it is.
constexpr Kind felt{
    .count = 70, .shortest = 18, .longest = 44, .thickness = 2, .curl = 0.06, .faintest = 0.7, .strongest = 1.4};
constexpr Kind paleHairs{
    .count = 70, .shortest = 12, .longest = 30, .thickness = 1.4, .curl = 0.07, .faintest = -1.6, .strongest = -0.8};
constexpr Kind hairs{
    .count = 130, .shortest = 9, .longest = 28, .thickness = 1.1, .curl = 0.09, .faintest = 1.5, .strongest = 3.4};

class Sheet {
 public:
  void strew(Dice& dice, const Kind& kind) {
    for (int count = 0; count < kind.count; ++count) lay(dice, kind);
  }

  double toneAt(int x, int y) const { return tones_[index(x, y)]; }

 private:
  static std::size_t index(int x, int y) { return static_cast<std::size_t>(y * side + x); }

  /// A fibre is a bow that fades at both ends; where it passes a pixel several times, it counts once.
  void lay(Dice& dice, const Kind& kind) {
    double x = dice.between(-10, side + 10), y = dice.between(-10, side + 10);
    double angle = dice.between(0, 2 * std::numbers::pi);
    const double bend = dice.between(-kind.curl, kind.curl), turn = dice.between(-0.004, 0.004);
    const double length = dice.between(kind.shortest, kind.longest);
    const double tone = dice.between(kind.faintest, kind.strongest);
    std::vector<double> cover(tones_.size());
    for (double walked = 0; walked < length; walked += 0.5) {
      const double strength = smoothStep(0, 0.3, std::min(walked, length - walked) / length);
      stamp(cover, x, y, kind.thickness, strength);
      x += 0.5 * std::cos(angle);
      y += 0.5 * std::sin(angle);
      angle += 0.5 * (bend + turn * walked);
    }
    for (std::size_t place = 0; place < cover.size(); ++place) tones_[place] += tone * cover[place];
  }

  static void stamp(std::vector<double>& cover, double x, double y, double thickness, double strength) {
    const int reach = static_cast<int>(std::ceil(2 * thickness));
    const int column = static_cast<int>(std::lround(x)), row = static_cast<int>(std::lround(y));
    for (int py = std::max(row - reach, 0); py <= std::min(row + reach, side - 1); ++py) {
      for (int px = std::max(column - reach, 0); px <= std::min(column + reach, side - 1); ++px) {
        const double distance = std::hypot(px - x, py - y) / thickness;
        double& here = cover[index(px, py)];
        here = std::max(here, strength * std::exp(-distance * distance));
      }
    }
  }

  std::vector<double> tones_ = std::vector<double>(static_cast<std::size_t>(side) * side);
};

}  // namespace

Picture paperSheet(const Colour& paper, std::uint64_t seed) {
  Dice dice(seed);
  Sheet sheet;
  for (const Kind& kind : {felt, paleHairs, hairs}) sheet.strew(dice, kind);
  const double towards = paper.green > 0.5 ? -1 : 1;
  Picture picture(side, side);
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const double lift = towards * oneLevel * std::clamp(sheet.toneAt(x, y), -mostLevels, mostLevels);
      picture.at(x, y) = {.red = paper.red + lift, .green = paper.green + lift, .blue = paper.blue + lift};
    }
  }
  return picture;
}

}  // namespace artwork
