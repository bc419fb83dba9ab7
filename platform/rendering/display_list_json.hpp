#pragma once

#include "foundation/json.hpp"
#include "rendering/display_list.hpp"
#include "rendering/meaning.hpp"

namespace rendering {

// The printed forms of a picture, a public interface: lengths in points rounded to 1/100, frames as [x, y, width,
// height], colours as "#RRGGBB" or "#RRGGBBAA".

foundation::JSON jsonOfLength(double points);
foundation::JSON jsonOf(const DisplayList& list);
foundation::JSON jsonOf(const Meaning& meaning);

}  // namespace rendering
