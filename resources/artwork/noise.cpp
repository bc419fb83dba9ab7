#include "noise.hpp"

#include <algorithm>
#include <cmath>

namespace artwork {

namespace {

/// Spreads every bit of the input over the whole result (the finalizer of SplitMix64).
std::uint64_t scramble(std::uint64_t bits) {
  bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9U;
  bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBU;
  return bits ^ (bits >> 31);
}

double unit(std::uint64_t bits) {
  return static_cast<double>(bits >> 11) * 0x1.0p-53;
}

/// How much the random slope of a lattice point contributes at an offset from it.
double slope(std::uint64_t seed, std::int64_t column, std::int64_t row, double dx, double dy) {
  const std::uint64_t place =
      static_cast<std::uint64_t>(column) * 0x9E3779B97F4A7C15U + static_cast<std::uint64_t>(row);
  const std::uint64_t bits = scramble(seed ^ scramble(place));
  return (2 * unit(bits) - 1) * dx + (2 * unit(bits << 32) - 1) * dy;
}

double fade(double t) {
  return t * t * t * (t * (t * 6 - 15) + 10);
}

}  // namespace

std::uint64_t seedOf(std::string_view name) {
  std::uint64_t hash = 0xCBF29CE484222325U;  // FNV-1a
  for (const char letter : name) hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001B3U;
  return scramble(hash);
}

std::uint64_t Dice::seed() {
  return scramble(state_ += 0x9E3779B97F4A7C15U);
}

double Dice::between(double low, double high) {
  return low + (high - low) * unit(seed());
}

double Dice::swing() {
  return between(-0.5, 0.5) + between(-0.5, 0.5) + between(-0.5, 0.5);
}

double noise(std::uint64_t seed, double x, double y) {
  const double left = std::floor(x), top = std::floor(y);
  const double dx = x - left, dy = y - top;
  const auto column = static_cast<std::int64_t>(left), row = static_cast<std::int64_t>(top);
  const double above = std::lerp(slope(seed, column, row, dx, dy), slope(seed, column + 1, row, dx - 1, dy), fade(dx));
  const double below =
      std::lerp(slope(seed, column, row + 1, dx, dy - 1), slope(seed, column + 1, row + 1, dx - 1, dy - 1), fade(dx));
  return 1.7 * std::lerp(above, below, fade(dy));
}

double clouds(std::uint64_t seed, double x, double y, int octaves) {
  double sum = 0, strength = 1, total = 0;
  for (int octave = 0; octave < octaves; ++octave) {
    sum += strength * noise(seed + static_cast<std::uint64_t>(octave), x, y);
    total += strength;
    x *= 2, y *= 2, strength /= 2;
  }
  return sum / total;
}

double smoothStep(double low, double high, double value) {
  const double t = std::clamp((value - low) / (high - low), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

}  // namespace artwork
