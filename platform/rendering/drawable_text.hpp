#pragma once

#include <string>

namespace rendering {

/// A text as the shaper can take it: valid UTF-8 (U+FFFD for what is none and for NUL), "\n" for every kind of line
/// break, a blank for a tab, no other control characters, and no longer than the largest widget holds in the smallest
/// letters. What is cut here ends with an ellipsis.
std::string drawableText(const std::string& content);

}  // namespace rendering
