#include "outline.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace artwork {

namespace {

constexpr int steps = 720;
constexpr double fullTurn = 2 * std::numbers::pi;

/// A superellipse: exponent 2 is a circle, more is squarer.
double squarish(double angle, double exponent) {
  return std::pow(std::pow(std::abs(std::cos(angle)), exponent) + std::pow(std::abs(std::sin(angle)), exponent),
                  -1 / exponent);
}

std::vector<double> randomReach(Dice& dice) {
  const double exponent = dice.between(2.0, 2.9), tilt = dice.between(-0.35, 0.35);
  struct Wave {
    double strength = 0;
    double phase = 0;
  };
  std::vector<Wave> waves;
  for (int lobes = 2; lobes <= 6; ++lobes) {
    waves.push_back({.strength = 0.09 / lobes * (0.35 + std::abs(dice.swing())), .phase = dice.between(0, fullTurn)});
  }
  const std::uint64_t fingers = dice.seed(), ripples = dice.seed();

  std::vector<double> reach;
  for (int step = 0; step < steps; ++step) {
    const double angle = step * fullTurn / steps, x = std::cos(angle), y = std::sin(angle);
    double distance = squarish(angle + tilt, exponent);
    int lobes = 2;
    for (const Wave& wave : waves) distance += wave.strength * std::cos(lobes++ * angle + wave.phase);
    // Where the paper was dry the edge is crisp and smooth, where it was damp it frays.
    const double fray = smoothStep(-0.3, 0.6, noise(fingers, 1.3 * x + 9, 1.3 * y));
    distance += 0.055 * noise(fingers, 2.6 * x, 2.6 * y) + (0.012 + 0.022 * fray) * clouds(ripples, 7 * x, 7 * y, 2);
    reach.push_back(distance);
  }
  return reach;
}

}  // namespace

Outline::Outline(Dice& dice, const Box& box) : reach_(randomReach(dice)) {
  double left = 0, right = 0, top = 0, bottom = 0;
  for (int step = 0; step < steps; ++step) {
    const double angle = step * fullTurn / steps, distance = reach_[static_cast<std::size_t>(step)];
    left = std::min(left, distance * std::cos(angle));
    right = std::max(right, distance * std::cos(angle));
    top = std::min(top, distance * std::sin(angle));
    bottom = std::max(bottom, distance * std::sin(angle));
  }
  scaleX_ = box.width / (right - left);
  scaleY_ = box.height / (bottom - top);
  middleX_ = box.left - left * scaleX_;
  middleY_ = box.top - top * scaleY_;
}

double Outline::reach(double angle) const {
  const double step = (angle < 0 ? angle + fullTurn : angle) / fullTurn * steps;
  const auto before = static_cast<std::size_t>(step);
  return std::lerp(reach_[before % steps], reach_[(before + 1) % steps], step - std::floor(step));
}

double Outline::depth(double x, double y) const {
  const double dx = (x - middleX_) / scaleX_, dy = (y - middleY_) / scaleY_;
  const double angle = std::atan2(dy, dx), here = std::hypot(dx, dy), edge = reach(angle);
  // A slanting edge is nearer than the ray to it is long.
  constexpr double nearby = fullTurn / 90;
  const double slant = (reach(angle + nearby) - reach(angle - nearby)) / (2 * nearby * edge);
  return (edge - here) / std::hypot(1.0, slant) * std::min(scaleX_, scaleY_);
}

}  // namespace artwork
