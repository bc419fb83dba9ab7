#include "paper.hpp"

#include <cmath>
#include <numbers>
#include <vector>

#include "noise.hpp"

namespace artwork {

namespace {

constexpr int side = 256;
constexpr double oneLevel = 1.0 / 255;

/// A hair in the sheet: a short bow, a little lighter or darker than the rest.
struct Fibre {
  double x = 0;
  double y = 0;
  double angle = 0;
  double bend = 0;
  double length = 0;
  double tone = 0;
};

std::vector<double> fibreTones(Dice& dice) {
  std::vector<double> tones(side * side);
  for (int count = 0; count < 90; ++count) {
    Fibre fibre{.x = dice.between(0, side),
                .y = dice.between(0, side),
                .angle = dice.between(0, 2 * std::numbers::pi),
                .bend = dice.between(-0.05, 0.05),
                .length = dice.between(8, 26),
                .tone = dice.between(-1.9, 1.3)};
    for (double walked = 0; walked < fibre.length; walked += 0.5) {
      const double fading = std::sin(std::numbers::pi * walked / fibre.length);
      const int left = static_cast<int>(std::floor(fibre.x)), top = static_cast<int>(std::floor(fibre.y));
      for (int corner = 0; corner < 4; ++corner) {
        const int x = left + corner % 2, y = top + corner / 2;
        if (x < 0 || x >= side || y < 0 || y >= side) continue;
        const double share = (1 - std::abs(fibre.x - x)) * (1 - std::abs(fibre.y - y));
        tones[static_cast<std::size_t>(y * side + x)] += 0.5 * fibre.tone * fading * share;
      }
      fibre.x += 0.5 * std::cos(fibre.angle);
      fibre.y += 0.5 * std::sin(fibre.angle);
      fibre.angle += 0.5 * fibre.bend;
    }
  }
  return tones;
}

}  // namespace

Picture paperSheet(const Colour& paper, std::uint64_t seed) {
  Dice dice(seed);
  const std::vector<double> fibres = fibreTones(dice);
  const std::uint64_t light = dice.seed(), warmth = dice.seed(), grain = dice.seed();
  Picture sheet(side, side);
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      // Half a level of scatter dissolves the steps between levels, which would else show as bands.
      const double scatter = dice.between(-0.5, 0.5);
      // The clouds lie askew, so that their lattice does not run along the sheet's edges.
      const double u = (0.82 * x + 0.57 * y) / 90, v = (0.82 * y - 0.57 * x) / 90;
      const double tone = 1.5 * clouds(light, u, v, 3) + 0.7 * noise(grain, x / 2.2, y / 2.2) +
                          fibres[static_cast<std::size_t>(y * side + x)] + scatter;
      const double warm = 1.5 * clouds(warmth, 0.8 * v, 0.8 * u, 2);
      sheet.at(x, y) = {.red = paper.red + oneLevel * (tone + 0.5 * warm),
                        .green = paper.green + oneLevel * tone,
                        .blue = paper.blue + oneLevel * (tone - warm)};
    }
  }
  return sheet;
}

}  // namespace artwork
