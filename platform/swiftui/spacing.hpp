#pragma once

#include "swiftui/element.hpp"
#include "swiftui/layout_engine.hpp"

namespace swiftui {

/// The gap that suits two neighbours of a stack where it is not given, in points. In a row it is 8; in a column it
/// depends on what meets: texts touch, a text keeps a distance from other things that follows its font, other things
/// keep 8, and a spacer none. A container meets its neighbours with its outer children, but one with padding at that
/// edge or a frame on that axis as a thing of its own.
double defaultSpacing(const Element& before, const Element& after, Axis axis, const LayoutEngine& engine);

}  // namespace swiftui
