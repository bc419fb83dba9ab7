// Many taps at the same moment, each in a process of its own, while somebody reads along.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

#include "completion/task_intent.hpp"
#include "shared/override_state.hpp"
#include "support/temporary_folder.hpp"

namespace mirune {
namespace {

constexpr int processes = 8;
constexpr int tapsOfEach = 25;

std::string idOf(int process, int tap) {
  return std::to_string(process) + "-" + std::to_string(tap);
}

/// Starts a process that taps, each time on another item.
pid_t startTapping(int process, const std::filesystem::path& container) {
  const pid_t id = ::fork();
  if (id != 0) return id;
  uikit::Platform platform;
  platform.files = foundation::FileManager(container);
  platform.log = [](std::string_view) {};
  const foundation::Date date(std::chrono::hours(1));
  for (int tap = 0; tap < tapsOfEach; ++tap) TaskIntent{.id = idOf(process, tap), .date = date}.perform(platform);
  ::_exit(0);
}

/// How many of the processes are still there; those that ended are reaped, and must have ended well.
std::size_t stillRunning(std::vector<pid_t>& children) {
  std::erase_if(children, [](pid_t child) {
    int status = 0;
    if (::waitpid(child, &status, WNOHANG) == 0) return false;
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    return true;
  });
  return children.size();
}

TEST(ConcurrentTaps, NeverLeaveATornFile) {
  const support::TemporaryFolder folder;
  const std::filesystem::path files[] = {folder / overrideFile, folder / timelineOverrideFile};
  std::vector<pid_t> children;
  for (int process = 0; process < processes; ++process) children.push_back(startTapping(process, folder.path()));

  std::size_t reads = 0;
  while (stillRunning(children) > 0) {
    for (const auto& file : files) {
      const auto bytes = foundation::readFile(file);
      if (!bytes) continue;  // before the first tap
      ++reads;
      EXPECT_TRUE(decodeOverrideState(*bytes)) << file << ": " << *bytes;
    }
  }
  EXPECT_GT(reads, 0U);

  for (const auto& file : files) {
    const auto state = decodeOverrideState(support::readBytes(file));
    ASSERT_TRUE(state) << file;
    // The last writer of all has read and kept what the one before it wrote.
    EXPECT_GE(state->size(), 1U);
    EXPECT_LE(state->size(), static_cast<std::size_t>(processes * tapsOfEach));
  }
  const std::filesystem::directory_iterator left(folder.path());
  EXPECT_EQ(std::distance(begin(left), end(left)), 2) << "a temporary file is left";
}

}  // namespace
}  // namespace mirune
