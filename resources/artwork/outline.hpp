#pragma once

#include <cstdint>
#include <vector>

#include "noise.hpp"

namespace artwork {

/// A rectangle in pixels.
struct Box {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
};

/// The uneven edge of a wet dab: a round to squarish blob, seen as a distance from its middle for every angle.
class Outline {
 public:
  /// A random outline that touches all four sides of the box.
  Outline(Dice& dice, const Box& box);

  /// Pixels from the point to the edge, positive inside; near the edge it is the true distance, deep inside about it.
  double depth(double x, double y) const;

  double middleX() const { return middleX_; }
  double middleY() const { return middleY_; }

 private:
  double reach(double angle) const;

  std::vector<double> reach_;  ///< by angle, evenly spaced from 0 to a full turn
  double middleX_ = 0;
  double middleY_ = 0;
  double scaleX_ = 1;
  double scaleY_ = 1;
};

}  // namespace artwork
