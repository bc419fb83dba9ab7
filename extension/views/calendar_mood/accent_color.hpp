#pragma once

#include "uikit/color.hpp"

namespace mirune {

/// The planner's pink, #E96E9E.
inline constexpr uikit::RGBA accentColor{.red = 0xE9 / 255.0, .green = 0x6E / 255.0, .blue = 0x9E / 255.0};

}  // namespace mirune
