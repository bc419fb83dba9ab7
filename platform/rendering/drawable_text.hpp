#pragma once

#include <string>

namespace rendering {

/// A text as the shaper can take it: valid UTF-8 (what is none becomes U+FFFD), "\n" for every kind of line break, and
/// no longer than the largest widget holds in the smallest letters: breaking a word costs the square of its length.
/// What is cut here ends with an ellipsis.
std::string drawableText(std::string content);

}  // namespace rendering
