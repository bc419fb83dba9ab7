#pragma once

#include <string>

#include "swiftui/layout.hpp"

namespace swiftui {

/// A placed tree as text for tests and for the eye: a line for each element, indented below its parent, in painting
/// order, with its frame in points, rounded to 1/100:
///
///   hstack (0,0) 100x20
///     text "ab" (0,5) 20x10
std::string outline(const PlacedElement& placed);

}  // namespace swiftui
