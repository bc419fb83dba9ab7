// The real extension, killed around every request that it knows.

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <fstream>
#include <thread>

#include "host/extension_process.hpp"
#include "host/mark_task_complete.hpp"
#include "support/child_processes.hpp"
#include "support/temporary_folder.hpp"

namespace {

constexpr const char* killed = "the widget extension stopped: it was ended by signal 9 (Killed)";

class KilledExtension : public testing::Test {
 protected:
  KilledExtension() { world.container = folder.path(); }

  /// What came instead of an answer; empty where that came.
  std::string problemOf(const messages::Request& request, const host::ExtensionProcess::ReportProgress& report = {}) {
    const auto reply = extension.ask({.world = world, .request = request}, report);
    if (!reply) return reply.error();
    const auto* failure = std::get_if<messages::Failure>(&*reply);
    return failure != nullptr ? failure->message : "";
  }
  /// The process, started where there is none.
  pid_t running() {
    EXPECT_EQ(problemOf(messages::NameDevice{}), "");
    const auto processes = support::childrenOf(::getpid());
    EXPECT_EQ(processes.size(), 1U);
    return processes.empty() ? 0 : processes.front();
  }

  const support::TemporaryFolder folder;
  messages::World world;
  host::ExtensionProcess extension{{.program = MIRUNE_EXTENSION}};
};

/// Returns when that thread of this process waits for something.
void awaitSleepOf(pid_t thread) {
  for (std::string state; state != "S"; std::this_thread::yield()) {
    std::ifstream file("/proc/self/task/" + std::to_string(thread) + "/stat");
    std::string number;
    std::string name;
    file >> number >> name >> state;
  }
}

TEST_F(KilledExtension, IsReportedInOneLineAndStartedByTheNextRequest) {
  using enum messages::ProviderOperation;
  const struct {
    const char* name;
    messages::Request request;
  } rows[] = {
      {"catalogue", messages::DescribeCatalogue{}},
      {"placeholder", messages::AskProvider{.operation = placeholder, .kind = "events"}},
      {"snapshot", messages::AskProvider{.operation = snapshot, .kind = "tasks"}},
      {"timeline", messages::AskProvider{.operation = timeline, .kind = "mood"}},
      {"entry",
       messages::DrawEntry{.kind = "quote", .family = "systemMedium", .entry = {{"date", "2026-11-21T08:00:00Z"}}}},
      {"sheet", messages::DrawSheet{.format = messages::PictureFormat::svg}},
      {"intent", messages::PerformIntent{.intent = host::markTaskComplete, .parameters = {{"id", "a"}, {"date", {}}}}},
      {"diagnosis", messages::DiagnoseContainer{}},
      {"device", messages::NameDevice{}},
  };
  const pid_t self = ::gettid();
  for (const auto& [name, request] : rows) {
    SCOPED_TRACE(name);
    ::kill(running(), SIGKILL);
    EXPECT_EQ(problemOf(request), killed) << "before the request";

    const pid_t stopped = running();
    ::kill(stopped, SIGSTOP);
    {
      const std::jthread killer([&] { awaitSleepOf(self), ::kill(stopped, SIGKILL); });
      EXPECT_EQ(problemOf(request), killed) << "before the answer";
    }
    EXPECT_EQ(problemOf(request), "");
  }
  const pid_t last = running();
  const auto kill = [&](const messages::Progress&) { ::kill(last, SIGKILL); };
  EXPECT_EQ(problemOf(messages::DrawSheet{}, kill), killed) << "within an answer";
  running();
}

}  // namespace
