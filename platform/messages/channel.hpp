#pragma once

#include <chrono>
#include <expected>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/json.hpp"

namespace messages {

/// What travels at once: a JSON header and optional bytes.
struct Frame {
  foundation::JSON header = {};
  std::string payload = {};
};

enum class ChannelError {
  closed,     ///< the other side is gone, between two frames or within one
  timedOut,   ///< nothing complete came before the deadline
  malformed,  ///< not a frame: bad lengths, or a header that is no JSON
};

/// One end of a stream socket that carries frames: two 32-bit lengths (header, payload; most significant byte first),
/// then both. A header has at most 64 MiB, a payload at most 256 MiB. Does not own the descriptor.
class Channel {
 public:
  using Deadline = std::optional<std::chrono::steady_clock::time_point>;

  explicit Channel(int descriptor) : descriptor_(descriptor) {}

  /// Writes a whole frame; a peer that is gone is an error, never a signal.
  std::expected<void, ChannelError> send(const foundation::JSON& header, std::string_view payload = {},
                                         Deadline deadline = {}) const;
  /// Waits for a whole frame, until the deadline if there is one.
  std::expected<Frame, ChannelError> receive(Deadline deadline = {}) const;

 private:
  int descriptor_;
};

}  // namespace messages
