#pragma once

#include <cstddef>
#include <string_view>

namespace foundation {

/// What a binary property list may unfold to.
struct NestingLimits {
  int depth = 256;
  std::size_t nodes = 1'000'000;
};

/// Whether a binary property list stays within the limits. Its containers refer to their elements by number, so a small
/// file can nest without end, or hold the same container in itself over and over, and libplist would follow.
bool unfoldsWithin(const NestingLimits& limits, std::string_view bytes);

}  // namespace foundation
