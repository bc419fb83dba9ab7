#pragma once

#include <string_view>

#include "uikit/color.hpp"

namespace mirune {

// Colours that the planner writes as hexadecimal text: "#E96E9E", "F80" (each digit twice), "80FF0000" (alpha first).
// What stands around the letters and digits does not count, "0x" does count into the length.

/// For the colours of events; a text of another length is opaque black.
uikit::RGBA platformColorOfHex(std::string_view text);

/// For calendar and moods; a text of another length is a colour next to nothing: 1, 1, 0 and alpha 1 of 255.
uikit::RGBA sRGBColorOfHex(std::string_view text);

}  // namespace mirune
