#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace support {

/// Choices made by bytes, one after the other; when no bytes are left, every choice is the first.
class ByteSource {
 public:
  explicit ByteSource(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  bool isEmpty() const { return bytes_.empty(); }

  /// From `low` up to and including `high`, which is at most 65 535 more.
  int between(int low, int high) {
    const unsigned count = static_cast<unsigned>(high - low) + 1;
    unsigned chosen = byte();
    if (count > 256) chosen = chosen * 256 + byte();
    return low + static_cast<int>(chosen % count);
  }
  bool coin() { return between(0, 1) == 1; }
  std::string text(int longest) {
    const auto wanted = static_cast<std::size_t>(between(0, longest));
    const std::size_t length = std::min(wanted, bytes_.size());
    const std::string result(bytes_.begin(), bytes_.begin() + static_cast<std::ptrdiff_t>(length));
    bytes_ = bytes_.subspan(length);
    return result;
  }

 private:
  std::uint8_t byte() {
    if (bytes_.empty()) return 0;
    const std::uint8_t first = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return first;
  }

  std::span<const std::uint8_t> bytes_;
};

}  // namespace support
