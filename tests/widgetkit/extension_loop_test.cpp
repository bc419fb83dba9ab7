#include "widgetkit/extension_loop.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <future>

#include "clock_bundle.hpp"
#include "foundation/file_descriptor.hpp"
#include "messages/channel.hpp"

namespace widgetkit {
namespace {

using foundation::JSON;

/// A host whose extension runs on a thread beside it.
class ExtensionLoopTest : public testing::Test {
 protected:
  ExtensionLoopTest() {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) std::abort();
    host_ = ends[0];
    status_ = std::async(std::launch::async, [descriptor = ends[1]] {
      ExtensionService service = clockService();
      const int status = serveHost(service, descriptor);
      ::close(descriptor);
      return status;
    });
  }
  ~ExtensionLoopTest() override { hangUp(); }

  void hangUp() {
    if (host_ >= 0) ::close(host_);
    host_ = -1;
  }

  messages::Frame answerTo(const JSON& header) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    messages::Channel channel(host_);
    EXPECT_TRUE(channel.send(header, {}, deadline));
    auto frame = channel.receive(deadline);
    EXPECT_TRUE(frame);
    return frame ? *frame : messages::Frame{};
  }

  int host_ = -1;
  std::future<int> status_;
};

TEST_F(ExtensionLoopTest, SurvivesFramesThatAreNoRequests) {
  for (const char* header :
       {"{}", "[]", "null", "3", R"({"request":"dance","world":{}})", R"({"request":"describe"})"}) {
    const auto frame = answerTo(JSON::parse(header));
    EXPECT_EQ(frame.header["reply"], "failure") << header;
    EXPECT_NE(frame.header["message"].get<std::string>().find("not a request"), std::string::npos) << header;
  }
  EXPECT_EQ(answerTo(messages::Envelope{}).header["reply"], "catalogue");
  hangUp();
  EXPECT_EQ(status_.get(), 0);
}

TEST(ExtensionLoop, RunsOnlyWithAHost) {
  ExtensionService service = clockService();
  testing::internal::CaptureStderr();
  EXPECT_EQ(serveHost(service, -1), 2);
  const int file = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
  EXPECT_EQ(serveHost(service, file), 2);
  ::close(file);
  EXPECT_NE(testing::internal::GetCapturedStderr().find("started without a host"), std::string::npos);
}

}  // namespace
}  // namespace widgetkit
