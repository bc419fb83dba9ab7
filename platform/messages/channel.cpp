#include "messages/channel.hpp"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <limits>

namespace messages {

using foundation::JSON;

namespace {

constexpr std::size_t lengthsSize = 8;
constexpr std::uint32_t largestHeader = 64 * 1024 * 1024;
constexpr std::uint32_t largestPayload = 256 * 1024 * 1024;
constexpr int deepestHeader = 512;
constexpr std::size_t largestStep = 1024 * 1024;

using Result = std::expected<void, ChannelError>;

/// How long poll may sleep, rounded up; -1 is for ever.
int pollTimeout(const Channel::Deadline& deadline) {
  if (!deadline) return -1;
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - std::chrono::steady_clock::now()).count();
  return static_cast<int>(std::clamp<std::int64_t>(left, 0, std::numeric_limits<int>::max()));
}

Result waitFor(int descriptor, short events, const Channel::Deadline& deadline) {
  while (true) {
    pollfd entry = {.fd = descriptor, .events = events, .revents = 0};
    const int count = ::poll(&entry, 1, pollTimeout(deadline));
    if (count > 0) return {};  // ready, or gone: the next call tells which
    if (count == 0) return std::unexpected(ChannelError::timedOut);
    if (errno != EINTR) return std::unexpected(ChannelError::closed);
  }
}

bool wouldBlock() {
  return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
}

Result sendAll(int descriptor, std::string_view bytes, const Channel::Deadline& deadline) {
  while (!bytes.empty()) {
    if (const Result ready = waitFor(descriptor, POLLOUT, deadline); !ready) return ready;
    const ssize_t count =
        ::send(descriptor, bytes.data(), std::min(bytes.size(), largestStep), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (count < 0 && wouldBlock()) continue;
    if (count < 0) return std::unexpected(ChannelError::closed);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return {};
}

/// Room is made as bytes come, so that a length alone costs no memory.
Result receiveAll(int descriptor, std::string& bytes, std::size_t size, const Channel::Deadline& deadline) {
  std::size_t filled = 0;
  while (filled < size) {
    if (const Result ready = waitFor(descriptor, POLLIN, deadline); !ready) return ready;
    bytes.resize(std::min(size, filled + largestStep));
    const ssize_t count = ::recv(descriptor, bytes.data() + filled, bytes.size() - filled, MSG_DONTWAIT);
    if (count < 0 && wouldBlock()) continue;
    if (count <= 0) return std::unexpected(ChannelError::closed);
    filled += static_cast<std::size_t>(count);
  }
  return {};
}

void appendLength(std::string& bytes, std::size_t length) {
  for (const int shift : {24, 16, 8, 0}) bytes += static_cast<char>((length >> shift) & 0xFF);
}

std::uint32_t lengthAt(std::string_view bytes, std::size_t offset) {
  std::uint32_t length = 0;
  for (const char byte : bytes.substr(offset, 4)) length = length << 8 | static_cast<unsigned char>(byte);
  return length;
}

/// Values are copied and compared by recursion, so brackets must not nest without end.
bool nestsTooDeep(std::string_view header) {
  int depth = 0;
  bool isInText = false;
  for (std::size_t at = 0; at < header.size(); ++at) {
    const char byte = header[at];
    if (isInText && byte == '\\') ++at;
    if (byte == '"') isInText = !isInText;
    if (isInText) continue;
    if (byte == '[' || byte == '{') ++depth;
    if (byte == ']' || byte == '}') --depth;
    if (depth > deepestHeader) return true;
  }
  return false;
}

}  // namespace

std::expected<void, ChannelError> Channel::send(const JSON& header, std::string_view payload, Deadline deadline) const {
  const std::string text = header.dump(-1, ' ', false, JSON::error_handler_t::replace);
  if (text.size() > largestHeader || payload.size() > largestPayload) return std::unexpected(ChannelError::malformed);
  std::string start;
  start.reserve(lengthsSize + text.size());
  appendLength(start, text.size());
  appendLength(start, payload.size());
  start += text;
  if (const Result sent = sendAll(descriptor_, start, deadline); !sent) return sent;
  return sendAll(descriptor_, payload, deadline);
}

std::expected<Frame, ChannelError> Channel::receive(Deadline deadline) const {
  std::string lengths;
  if (const Result read = receiveAll(descriptor_, lengths, lengthsSize, deadline); !read) {
    return std::unexpected(read.error());
  }
  const std::uint32_t headerSize = lengthAt(lengths, 0);
  const std::uint32_t payloadSize = lengthAt(lengths, 4);
  if (headerSize > largestHeader || payloadSize > largestPayload) return std::unexpected(ChannelError::malformed);

  std::string header;
  Frame frame;
  if (const Result read = receiveAll(descriptor_, header, headerSize, deadline); !read) {
    return std::unexpected(read.error());
  }
  if (const Result read = receiveAll(descriptor_, frame.payload, payloadSize, deadline); !read) {
    return std::unexpected(read.error());
  }
  if (nestsTooDeep(header)) return std::unexpected(ChannelError::malformed);
  frame.header = JSON::parse(header, nullptr, false);
  if (frame.header.is_discarded()) return std::unexpected(ChannelError::malformed);
  return frame;
}

}  // namespace messages
