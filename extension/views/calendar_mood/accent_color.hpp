#pragma once

#include "styling/hex_color.hpp"

namespace mirune {

/// The planner's own pink, which marks today.
inline uikit::RGBA accentColor() {
  return sRGBColorOfHex("#E96E9E");
}

}  // namespace mirune
