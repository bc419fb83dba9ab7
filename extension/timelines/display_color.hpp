#pragma once

#include "foundation/json.hpp"
#include "uikit/color.hpp"

namespace mirune {

/// A colour as entries carry it: {"red", "green", "blue", "alpha"} from 0 to 1, or "label". The system's other colours
/// are no colours of entries.
foundation::JSON jsonOfColor(const uikit::Color& color);
uikit::Color colorOfJSON(const foundation::JSON& json);

}  // namespace mirune
