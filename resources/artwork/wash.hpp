#pragma once

#include <cstdint>

#include "picture.hpp"

namespace artwork {

/// How pigment shows on the paper of one appearance.
enum class Appearance { light, dark };

/// The paper that the appearance's pictures lie on.
Colour paperOf(Appearance appearance);

/// A dab of watercolour that fills a picture of 120 by 108 pixels and is clear around its edge.
struct Wash {
  Appearance appearance = Appearance::light;
  Colour main;   ///< as it looks on the paper at a normal load of pigment
  Colour bleed;  ///< a second pigment that ran into it
  std::uint64_t seed = 0;
};

Picture painted(const Wash& wash);

}  // namespace artwork
