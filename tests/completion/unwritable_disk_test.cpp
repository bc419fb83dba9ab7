// A tap where nothing can be written.

#include <gtest/gtest.h>

#include <set>

#include "completion/task_intent.hpp"
#include "shared/override_state.hpp"
#include "support/forked.hpp"
#include "support/small_disk.hpp"
#include "support/temporary_folder.hpp"

namespace mirune {
namespace {

constexpr int cannotMount = 77;
const std::string before = R"({"A":"2024-03-07T10:00:00Z"})";
const std::string after = R"({"A":"2024-03-07T10:00:00Z","B":"1970-01-01T01:00:00Z"})";

void tapOnB(const std::filesystem::path& container) {
  uikit::Platform platform;
  platform.files = foundation::FileManager(container);
  platform.log = [](std::string_view) {};
  TaskIntent{.id = "B", .date = foundation::Date(std::chrono::hours(1))}.perform(platform);
}

std::set<std::string> namesIn(const std::filesystem::path& folder) {
  std::set<std::string> names;
  for (const auto& each : std::filesystem::directory_iterator(folder)) names.insert(each.path().filename());
  return names;
}

struct Fault {
  const char* name;
  void (*begin)(const std::filesystem::path& folder);
  void (*end)(const std::filesystem::path& folder);
};

void expectNothingLost(const Fault& fault, const std::filesystem::path& folder) {
  const auto files = {folder / overrideFile, folder / timelineOverrideFile};
  for (const auto& file : files) support::writeBytes(file, before);
  fault.begin(folder);
  const auto names = namesIn(folder);
  tapOnB(folder);
  for (const auto& file : files) EXPECT_EQ(support::readBytes(file), before) << file;
  EXPECT_EQ(namesIn(folder), names) << "a temporary file is left";
  fault.end(folder);
  tapOnB(folder);
  for (const auto& file : files) EXPECT_EQ(support::readBytes(file), after) << file;
}

TEST(UnwritableDisk, KeepsWhatWasMarkedBefore) {
  const Fault faults[] = {
      {"full", [](const auto& folder) { support::fillDisk(folder / "filler"); },
       [](const auto& folder) { std::filesystem::remove(folder / "filler"); }},
      {"read-only", [](const auto& folder) { EXPECT_TRUE(support::makeReadOnly(folder)); },
       [](const auto& folder) { EXPECT_TRUE(support::makeWritable(folder)); }},
  };
  for (const Fault& fault : faults) {
    const support::TemporaryFolder folder;
    const int status = support::statusOf(support::inChild([&] {
      if (!support::leaveTheMountsOfOthers() || !support::mountSmallDisk(folder.path())) ::_exit(cannotMount);
      expectNothingLost(fault, folder.path());
    }));
    if (WIFEXITED(status) && WEXITSTATUS(status) == cannotMount) GTEST_SKIP() << "nobody may mount on this machine";
    EXPECT_EQ(status, 0) << fault.name;
  }
}

}  // namespace
}  // namespace mirune
