#include "host/live/folder_watch.hpp"

#include <gtest/gtest.h>

#include "support/temporary_folder.hpp"
#include "waiting.hpp"

namespace host {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using live_test::begin;
using live_test::runUntil;

class FolderWatchTest : public testing::Test {
 protected:
  explicit FolderWatchTest() { fs::create_directories(watched); }

  void awaitNext() { change = begin(context, watch->changed()); }
  bool comes() {
    return runUntil(context, [&] { return *change; });
  }
  bool staysAway() {
    return !runUntil(context, [&] { return *change; }, 400ms);
  }
  /// Each of the steps has to be noticed by itself.
  void expectNoticed(std::initializer_list<std::function<void()>> steps) {
    watch.emplace(context.get_executor(), std::vector{watched, watched / "Library/Preferences"});
    int number = 0;
    for (const auto& step : steps) {
      awaitNext();
      step();
      EXPECT_TRUE(comes()) << "step " << number;
      ++number;
    }
  }
  void write(const std::string& name) const { support::writeBytes(watched / name, "text"); }

  const support::TemporaryFolder folder;
  const fs::path watched = folder / "a/container";
  boost::asio::io_context context;
  std::optional<FolderWatch> watch;
  std::shared_ptr<bool> change;
};

TEST_F(FolderWatchTest, TellsEveryKindOfChange) {
  write("old");
  expectNoticed({[&] { write("new"); }, [&] { write("old"); }, [&] { fs::rename(watched / "old", folder / "away"); },
                 [&] { fs::rename(folder / "away", watched / "new"); }, [&] { fs::remove(watched / "new"); }});
  awaitNext();
  EXPECT_TRUE(staysAway());
}

TEST_F(FolderWatchTest, TellsABurstOnce) {
  watch.emplace(context.get_executor(), std::vector{watched});
  awaitNext();
  for (int count = 0; count < 500; ++count) write("file" + std::to_string(count % 50));
  EXPECT_TRUE(comes());
  awaitNext();
  EXPECT_TRUE(staysAway());
}

TEST_F(FolderWatchTest, DoesNotWaitForTheEndOfALongBurst) {
  watch.emplace(context.get_executor(), std::vector{watched});
  awaitNext();
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(runUntil(context, [&] {
    write("file");
    return *change;
  }));
  EXPECT_GE(std::chrono::steady_clock::now() - start, 1s);
  EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
}

TEST_F(FolderWatchTest, WaitsForAFolderThatComesLater) {
  fs::remove_all(folder / "a");
  expectNoticed({[&] { fs::create_directories(folder / "a"); }, [&] { fs::create_directories(watched); },
                 [&] { write("file"); }, [&] { fs::create_directories(watched / "Library"); },
                 [&] { fs::create_directories(watched / "Library/Preferences"); },
                 [&] { write("Library/Preferences/settings"); }});
}

TEST_F(FolderWatchTest, FollowsAFolderThatIsReplaced) {
  write("Library/Preferences/settings");
  expectNoticed({[&] {
                   fs::rename(watched, folder / "away");
                   fs::create_directories(watched);
                 },
                 [&] { write("file"); }, [&] { fs::remove_all(watched); }, [&] { fs::create_directories(watched); },
                 [&] { write("file"); }, [&] { write("Library/Preferences/settings"); },
                 [&] { write("Library/Preferences/settings"); }});
}

}  // namespace
}  // namespace host
