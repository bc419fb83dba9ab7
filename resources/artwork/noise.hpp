#pragma once

#include <cstdint>
#include <string_view>

namespace artwork {

/// The seed that belongs to a name: the same on every machine.
std::uint64_t seedOf(std::string_view name);

/// A short run of numbers that depends on its seed only.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed) {}

  std::uint64_t seed();
  double between(double low, double high);
  /// Around 0, seldom beyond ±1, never beyond ±1.5.
  double swing();

 private:
  std::uint64_t state_;
};

/// A smooth random field over the plane with features about 1 unit wide, from -1 to 1.
double noise(std::uint64_t seed, double x, double y);

/// Noise in octaves, each twice as fine and half as strong as the one before; from -1 to 1.
double clouds(std::uint64_t seed, double x, double y, int octaves);

/// Rises smoothly from 0 at `low` to 1 at `high`.
double smoothStep(double low, double high, double value);

}  // namespace artwork
