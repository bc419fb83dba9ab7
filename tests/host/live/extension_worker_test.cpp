#include "host/live/extension_worker.hpp"

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <boost/asio/steady_timer.hpp>

#include "support/child_processes.hpp"
#include "waiting.hpp"

namespace host {
namespace {

using namespace std::chrono_literals;
using live_test::begin;
using live_test::runUntil;
using Urgency = ExtensionWorker::Urgency;

std::vector<pid_t> processes() {
  return support::childrenOf(getpid());
}

std::string told(const ExtensionWorker::Answer& answer) {
  if (!answer) return answer.error();
  const auto* timeline = std::get_if<messages::Timeline>(&*answer);
  return timeline ? timeline->kind : "another reply";
}

class Worker : public testing::Test {
 protected:
  boost::asio::awaitable<std::string> asking(std::string kind, Urgency urgency) {
    messages::Envelope envelope{.world = {}, .request = messages::AskProvider{.kind = kind}};
    const auto answer = co_await worker.ask(std::move(envelope), urgency);
    order.push_back(kind);
    co_return told(answer);
  }
  std::shared_ptr<std::optional<std::string>> ask(const std::string& kind, Urgency urgency = Urgency::usual) {
    auto answer = begin(context, asking(kind, urgency));
    context.restart();
    context.poll();
    return answer;
  }
  std::string answerTo(const std::string& kind) {
    const auto answer = ask(kind);
    EXPECT_TRUE(runUntil(context, [&] { return answer->has_value(); })) << kind;
    return answer->value_or("");
  }

  boost::asio::io_context context;
  ExtensionWorker worker{context.get_executor(), {.program = FAKE_EXTENSION, .timeLimit = 500ms}};
  std::vector<std::string> order;
};

TEST_F(Worker, AnswersInOrderAndWhatIsUrgentFirst) {
  // While the first does not answer, the others gather.
  ask("hang");
  ASSERT_TRUE(runUntil(context, [] { return !processes().empty(); }));
  ask("a");
  ask("b");
  ask("tap", Urgency::tap);
  EXPECT_EQ(worker.pending(), 4U);
  EXPECT_TRUE(order.empty());
  ASSERT_TRUE(runUntil(context, [&] { return order.size() == 4; }));
  EXPECT_EQ(order, (std::vector<std::string>{"hang", "tap", "a", "b"}));
  EXPECT_EQ(worker.pending(), 0U);
}

TEST_F(Worker, HoldsNothingUpWhileTheExtensionHangs) {
  const auto answer = ask("hang");
  boost::asio::steady_timer timer(context, 1ms);
  bool hasTicked = false;
  timer.async_wait([&](const boost::system::error_code&) { hasTicked = true; });
  EXPECT_TRUE(runUntil(context, [&] { return hasTicked || answer->has_value(); }));
  EXPECT_TRUE(hasTicked);
  ASSERT_TRUE(runUntil(context, [&] { return answer->has_value(); }));
  EXPECT_EQ(*answer, "the widget extension did not answer within 0.5 s");
  EXPECT_EQ(answerTo("tasks"), "Fake_tasks");
}

TEST_F(Worker, MissesNoRequestWhereTheProcessWasEnded) {
  for (int count = 0; count < 5; ++count) {
    EXPECT_EQ(answerTo("tasks"), "Fake_tasks") << count;
    const auto running = processes();
    ASSERT_EQ(running.size(), 1U);
    ASSERT_EQ(kill(running.front(), SIGKILL), 0);
  }
  EXPECT_EQ(answerTo("crash"), "the widget extension stopped: it was ended by signal 9 (Killed)");
  EXPECT_EQ(answerTo("die"), "the widget extension stopped: item 7 has no identifier");
  EXPECT_EQ(answerTo("tasks"), "Fake_tasks");
}

TEST_F(Worker, LetsTheProcessGo) {
  EXPECT_FALSE(worker.isRunning());
  EXPECT_EQ(answerTo("tasks"), "Fake_tasks");
  EXPECT_TRUE(worker.isRunning());
  EXPECT_EQ(processes().size(), 1U);
  worker.letGo();
  EXPECT_FALSE(worker.isRunning());
  EXPECT_TRUE(runUntil(context, [] { return processes().empty(); }));
  EXPECT_EQ(answerTo("tasks"), "Fake_tasks");
  EXPECT_TRUE(worker.isRunning());
}

TEST(ExtensionWorker, EndsWithWhatItWasNotAskedYet) {
  boost::asio::io_context context;
  {
    ExtensionWorker worker(context.get_executor(), {.program = FAKE_EXTENSION, .timeLimit = 500ms});
    for (const char* kind : {"hang", "a", "b"}) {
      messages::Envelope envelope{.world = {}, .request = messages::AskProvider{.kind = kind}};
      auto answer = worker.ask(std::move(envelope));
      begin(context, std::move(answer));
    }
    ASSERT_TRUE(runUntil(context, [] { return !processes().empty(); }));
  }
  EXPECT_TRUE(processes().empty());
}

}  // namespace
}  // namespace host
