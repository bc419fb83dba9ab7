#include "messages/channel.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <thread>

namespace messages {
namespace {

using foundation::JSON;
using std::chrono::milliseconds;

Channel::Deadline in(milliseconds time) {
  return std::chrono::steady_clock::now() + time;
}

/// Two connected sockets.
class Pair {
 public:
  Pair() { EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends_.data()), 0); }
  ~Pair() {
    closeEnd(0);
    closeEnd(1);
  }
  Pair(const Pair&) = delete;
  Pair& operator=(const Pair&) = delete;

  int operator[](std::size_t end) const { return ends_[end]; }
  void closeEnd(std::size_t end) {
    if (ends_[end] >= 0) ::close(ends_[end]);
    ends_[end] = -1;
  }

 private:
  std::array<int, 2> ends_ = {-1, -1};
};

std::string frameBytes(std::uint32_t headerSize, std::uint32_t payloadSize, std::string_view rest) {
  std::string bytes;
  for (const std::uint32_t size : {headerSize, payloadSize}) {
    for (const int shift : {24, 16, 8, 0}) bytes += static_cast<char>(size >> shift & 0xFF);
  }
  return bytes + std::string(rest);
}

void writeAll(int descriptor, std::string_view bytes) {
  ASSERT_EQ(::send(descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL), static_cast<ssize_t>(bytes.size()));
}

TEST(Channel, CarriesFramesLargerThanTheSocketHolds) {
  for (const bool isNonBlocking : {false, true}) {
    const Pair pair;
    if (isNonBlocking) {
      for (const std::size_t end : {0U, 1U}) ::fcntl(pair[end], F_SETFL, O_NONBLOCK);
    }
    const JSON header = {{"text", std::string(3'000'000, 'h')}};
    const std::string payload(5'000'000, '\0');
    std::thread sender([&] {
      Channel channel(pair[0]);
      EXPECT_TRUE(channel.send(header, payload));
      EXPECT_TRUE(channel.send("second"));
    });
    Channel channel(pair[1]);
    const auto first = channel.receive(in(milliseconds(20'000)));
    const auto second = channel.receive(in(milliseconds(20'000)));
    sender.join();
    ASSERT_TRUE(first);
    EXPECT_TRUE(first->header == header && first->payload == payload);
    ASSERT_TRUE(second);
    EXPECT_EQ(second->header, "second");
    EXPECT_EQ(second->payload, "");
  }
}

TEST(Channel, PutsAFrameTogetherFromPieces) {
  const Pair pair;
  const std::string bytes = frameBytes(2, 3, "{}abc");
  std::thread sender([&] {
    for (const char byte : bytes) {
      writeAll(pair[0], std::string_view(&byte, 1));
      std::this_thread::sleep_for(milliseconds(2));
    }
  });
  const auto frame = Channel(pair[1]).receive();
  sender.join();
  ASSERT_TRUE(frame);
  EXPECT_EQ(frame->header, JSON::object());
  EXPECT_EQ(frame->payload, "abc");
}

TEST(Channel, TellsThatThePeerIsGone) {
  const std::string whole = frameBytes(2, 3, "{}abc");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    Pair pair;
    writeAll(pair[0], whole.substr(0, size));
    pair.closeEnd(0);
    EXPECT_EQ(Channel(pair[1]).receive().error(), ChannelError::closed) << size;
  }
  Pair pair;
  pair.closeEnd(1);
  EXPECT_EQ(Channel(pair[0]).send("x", std::string(5'000'000, 'x')).error(), ChannelError::closed);
}

TEST(Channel, WaitsNoLongerThanItsDeadline) {
  const Pair pair;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Channel(pair[1]).receive(in(milliseconds(30))).error(), ChannelError::timedOut);
  EXPECT_GE(std::chrono::steady_clock::now() - start, milliseconds(30));
  writeAll(pair[0], frameBytes(2, 3, "{}a"));
  EXPECT_EQ(Channel(pair[1]).receive(in(milliseconds(10))).error(), ChannelError::timedOut);
  EXPECT_EQ(Channel(pair[1]).receive(in(milliseconds(-10))).error(), ChannelError::timedOut) << "a past deadline";
  EXPECT_EQ(Channel(pair[0]).send("x", std::string(50'000'000, 'x'), in(milliseconds(10))).error(),
            ChannelError::timedOut);
}

TEST(Channel, RefusesWhatIsNoFrame) {
  const std::string deep = std::string(100'000, '[') + std::string(100'000, ']');
  const struct {
    const char* what;
    std::string bytes;
  } rows[] = {
      {"a header too long", frameBytes(64 * 1024 * 1024 + 1, 0, "")},
      {"a payload too long", frameBytes(2, 256 * 1024 * 1024 + 1, "{}")},
      {"lengths that are text", "GET / HTTP/1.1\r\n"},
      {"no header", frameBytes(0, 0, "")},
      {"a header that is no JSON", frameBytes(3, 0, "{a}")},
      {"a header that nests without end", frameBytes(200'000, 0, deep)},
  };
  for (const auto& row : rows) {
    const Pair pair;
    std::thread sender([&] { writeAll(pair[0], row.bytes); });
    const auto frame = Channel(pair[1]).receive(in(milliseconds(5000)));
    sender.join();
    ASSERT_FALSE(frame) << row.what;
    EXPECT_EQ(frame.error(), ChannelError::malformed) << row.what;
  }
}

TEST(Channel, SendsTextsThatAreNotUTF8Repaired) {
  const Pair pair;
  ASSERT_TRUE(Channel(pair[0]).send({{"path", "a\xFF"}}));
  EXPECT_EQ(Channel(pair[1]).receive()->header["path"], "a\uFFFD");
}

}  // namespace
}  // namespace messages
