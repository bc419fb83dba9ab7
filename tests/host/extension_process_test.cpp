#include "host/extension_process.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "foundation/file_descriptor.hpp"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

messages::Envelope askFor(const std::string& kind) {
  return {.world = {}, .request = messages::AskProvider{.kind = kind}};
}

host::ExtensionProcess fake(std::chrono::milliseconds timeLimit = 20s) {
  return host::ExtensionProcess({.program = FAKE_EXTENSION, .timeLimit = timeLimit});
}

/// The entries that came, or the problem.
std::string told(const std::expected<messages::Reply, std::string>& reply) {
  if (!reply) return reply.error();
  const auto* timeline = std::get_if<messages::Timeline>(&*reply);
  return timeline ? std::to_string(timeline->entries.size()) + " entries" : "another reply";
}

bool hasChildren() {
  return waitpid(-1, nullptr, WNOHANG) >= 0;
}

TEST(ExtensionProcess, ExplainsEveryWayToFailAndLeavesNoProcess) {
  struct Case {
    const char* kind;
    std::chrono::milliseconds timeLimit;
    const char* told;
  };
  const Case cases[] = {
      {"die", 20s, "the widget extension stopped: item 7 has no identifier"},
      {"dieSilently", 20s, "the widget extension stopped: it ended with status 3"},
      {"crash", 20s, "the widget extension stopped: it was ended by signal 9 (Killed)"},
      {"close", 20s, "the widget extension stopped: it closed the connection"},
      {"floodAndDie", 20s, "the widget extension stopped: the end"},
      {"halfFrame", 20s, "the widget extension stopped: it ended with status 0"},
      {"garbage", 20s, "the widget extension sent an answer that cannot be read"},
      {"wrongFields", 20s, "the widget extension sent an answer that cannot be read"},
      {"hang", 200ms, "the widget extension did not answer within 0.2 s"},
      {"halfFrameHang", 200ms, "the widget extension did not answer within 0.2 s"},
      {"suspend", 200ms, "the widget extension did not answer within 0.2 s"},
  };
  for (const auto& each : cases) {
    auto extension = fake(each.timeLimit);
    const auto start = Clock::now();
    EXPECT_EQ(told(extension.ask(askFor(each.kind))), each.told) << each.kind;
    EXPECT_LT(Clock::now() - start, 10s) << each.kind;
    EXPECT_FALSE(hasChildren()) << each.kind;
    EXPECT_EQ(told(extension.ask(askFor("tasks"))), "2 entries") << "afresh after " << each.kind;
  }
  EXPECT_EQ(told(fake().ask(askFor("flood"))), "2 entries");
  EXPECT_FALSE(hasChildren());
}

TEST(ExtensionProcess, IsKilledWhenItDoesNotGo) {
  const auto start = Clock::now();
  {
    auto extension = fake();
    EXPECT_EQ(told(extension.ask(askFor("stubborn"))), "2 entries");
  }
  EXPECT_LT(Clock::now() - start, 10s);
  EXPECT_FALSE(hasChildren());
}

TEST(ExtensionProcess, GetsNoDescriptorsButItsOwn) {
  const foundation::FileDescriptor inheritable(open("/dev/null", O_RDONLY));
  auto extension = fake();
  const auto reply = extension.ask(askFor("descriptors"));
  ASSERT_TRUE(reply) << reply.error();
  EXPECT_EQ(std::get<messages::Timeline>(*reply).entries.at(0)["open"], foundation::JSON({0, 1, 2, 3}));
}

TEST(ExtensionProcess, ThatIsMissingIsNamed) {
  host::ExtensionProcess missing({.program = "/nowhere/mirune-extension"});
  EXPECT_EQ(told(missing.ask(askFor("tasks"))),
            "the widget extension cannot be started: /nowhere/mirune-extension: No such file or directory");
}

}  // namespace
