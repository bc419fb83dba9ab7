#include <grp.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "home/home_store.hpp"
#include "home/listing.hpp"
#include "support/forked.hpp"
#include "support/temporary_folder.hpp"

namespace {

using home::HomeStore;
using home::Place;
using support::inChild;
using support::statusOf;

/// As long as it lives, no file of this process can grow beyond a size, as on a full disk.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t size) : handler_(::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {.rlim_cur = size, .rlim_max = before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    ::signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_ = {};
  sighandler_t handler_;
};

/// Wherever the disk becomes full, a change is made as a whole or refused.
TEST(FullDisk, RefusesChangesAndLosesNothing) {
  int refused = 0;
  int made = 0;
  for (rlim_t limit = 0; limit < 32'000; limit += 2'000) {
    SCOPED_TRACE(limit);
    const support::TemporaryFolder folder;
    const auto file = folder / "home.db";
    HomeStore store(file);
    for (int i = 0; i < 100; ++i) {
      const auto before = store.widgets();
      const bool isMade = [&] {
        const FileSizeLimit full(limit);
        return store.add(std::string(2000, 'k'), "systemSmall", Place::home).has_value();
      }();
      ++(isMade ? made : refused);
      ASSERT_EQ(store.widgets().size(), before.size() + (isMade ? 1 : 0));
      if (isMade) continue;
      {
        const FileSizeLimit full(0);
        EXPECT_FALSE(store.move(3, 0));
        EXPECT_FALSE(store.remove(4));
      }
      ASSERT_EQ(store.widgets(), before);
      break;
    }
    EXPECT_EQ(HomeStore(file).widgets(), store.widgets());
    EXPECT_TRUE(store.remove(4)) << "there is room again";
  }
  EXPECT_EQ(refused, 16);
  EXPECT_GT(made, 10);
}

TEST(FullDisk, TheFirstStartIsInMemoryUntilThereIsRoom) {
  const support::TemporaryFolder folder;
  const auto file = folder / "home.db";
  {
    const FileSizeLimit full(5'000);
    const HomeStore store(file);
    EXPECT_FALSE(store.isKept());
    EXPECT_EQ(store.widgets().size(), 12U);
  }
  const HomeStore store(file);
  EXPECT_TRUE(store.isKept());
  EXPECT_EQ(store.notice(), std::nullopt);
  EXPECT_EQ(store.widgets().size(), 12U);
}

TEST(ReadOnlyFile, IsShownAndRefusesChanges) {
  const support::TemporaryFolder folder;
  const auto file = folder / "home.db";
  {
    EXPECT_TRUE(HomeStore(file).remove(1));
  }
  ::chmod(file.c_str(), 0444);
  ::chmod(folder.path().c_str(), 0555);
  const auto child = inChild([&] {
    if (::geteuid() == 0) {  // who may write anywhere
      ASSERT_EQ(::setgroups(0, nullptr), 0);
      ASSERT_EQ(::setgid(65534), 0);
      ASSERT_EQ(::setuid(65534), 0);
    }
    HomeStore store(file);
    EXPECT_EQ(store.notice(), std::nullopt);
    EXPECT_EQ(store.remove(2).error().reason, home::StoreError::Reason::notStored);
    EXPECT_FALSE(store.add("k", "systemSmall", Place::home));
    EXPECT_EQ(order(store.widgets()), "home: 2 3 4 5 6 7 8 | lock: 9 10 11 12");
    EXPECT_FALSE(HomeStore(folder / "another.db").isKept());
  });
  EXPECT_EQ(statusOf(child), 0);
  ::chmod(folder.path().c_str(), 0755);
}

/// A writer is killed at any moment: the next start finds the state before or after its last change, in order.
TEST(KilledWriter, LeavesASoundFile) {
  const support::TemporaryFolder folder;
  const auto file = folder / "home.db";
  int longest = 0;
  for (int round = 0; round < 25; ++round) {
    const auto child = inChild([&] {
      HomeStore store(file);
      for (int i = 0;; ++i) {
        if (!store.move(store.widgets()[static_cast<std::size_t>(i % 8)].id, i % 5)) ::_exit(2);
        if (i % 3 != 0) continue;
        const bool isChanged = store.widgets().size() > 15 ? store.remove(store.widgets()[7].id).has_value()
                                                           : store.add("k", "systemSmall", Place::home).has_value();
        if (!isChanged) ::_exit(3);
      }
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(3 + 4 * round));
    ::kill(child, SIGKILL);
    ASSERT_TRUE(WIFSIGNALED(statusOf(child)));
    const HomeStore store(file);
    ASSERT_EQ(store.notice(), std::nullopt);
    const int count = static_cast<int>(store.widgets().size());
    longest = std::max(longest, count);
    ASSERT_TRUE(count >= 12 && count <= 16) << order(store.widgets());
    ASSERT_EQ(order(store.widgets()).find('@'), std::string::npos) << order(store.widgets());
  }
  EXPECT_GT(longest, 12) << "nothing was written";
}

}  // namespace
