#include "foundation/file_manager.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <atomic>
#include <thread>

#include "support/temporary_folder.hpp"

namespace foundation {
namespace {

namespace fs = std::filesystem;

mode_t modeOf(const fs::path& path) {
  struct stat status = {};
  return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

std::ptrdiff_t countEntries(const fs::path& folder) {
  return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

TEST(ReadFile, GivesTheBytesOrSaysWhyNot) {
  const support::TemporaryFolder folder;
  const std::string bytes = std::string("a\0b", 3) + std::string(100'000, 'x');
  support::writeBytes(folder / "file", bytes);
  support::writeBytes(folder / "empty", "");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);

  EXPECT_EQ(readFile(folder / "file"), bytes);
  EXPECT_EQ(readFile(folder / "empty"), "");
  EXPECT_EQ(readFile(folder / "missing").error(), std::errc::no_such_file_or_directory);
  EXPECT_EQ(readFile(folder / "file" / "below").error(), std::errc::not_a_directory);
  EXPECT_EQ(readFile(folder.path()).error(), std::errc::is_a_directory);
  EXPECT_EQ(readFile(folder / "pipe").error(), std::errc::invalid_argument);
  EXPECT_FALSE(readFile("/proc/self/status")->empty()) << "its size is told as 0";
}

TEST(WriteFileAtomically, KeepsTheModeAndReplacesLinksThemselves) {
  const support::TemporaryFolder folder;
  support::writeBytes(folder / "old", "old");
  fs::permissions(folder / "old", static_cast<fs::perms>(0640));
  fs::create_symlink("old", folder / "link");

  EXPECT_TRUE(writeFileAtomically(folder / "link", "by link"));
  EXPECT_FALSE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(readFile(folder / "link"), "by link");
  EXPECT_EQ(readFile(folder / "old"), "old");

  EXPECT_TRUE(writeFileAtomically(folder / "old", "new"));
  EXPECT_EQ(readFile(folder / "old"), "new");
  EXPECT_EQ(modeOf(folder / "old"), 0640U);

  const mode_t mask = ::umask(027);
  EXPECT_TRUE(writeFileAtomically(folder / "new", ""));
  ::umask(mask);
  EXPECT_EQ(modeOf(folder / "new"), 0640U);
  EXPECT_EQ(countEntries(folder.path()), 3);
}

TEST(WriteFileAtomically, LeavesNothingBehindWhenItFails) {
  const support::TemporaryFolder folder;
  support::writeBytes(folder / "file", "old");
  support::writeBytes(folder / "folder" / "inside", "kept");

  EXPECT_EQ(writeFileAtomically(folder / "missing" / "file", "new").error(), std::errc::no_such_file_or_directory);
  EXPECT_EQ(writeFileAtomically(folder / "file" / "below", "new").error(), std::errc::not_a_directory);
  EXPECT_EQ(writeFileAtomically(folder / "folder", "new").error(), std::errc::is_a_directory);
  EXPECT_EQ(readFile(folder / "file"), "old");
  EXPECT_EQ(countEntries(folder.path()), 2);
}

TEST(WriteFileAtomically, NeverShowsHalfAFile) {
  const support::TemporaryFolder folder;
  const fs::path file = folder / "file";
  const std::string first(200'000, '1');
  const std::string second(300'000, '2');
  ASSERT_TRUE(writeFileAtomically(file, first));

  std::atomic<bool> isDone = false;
  std::thread writer([&] {
    for (int round = 0; round < 50; ++round) {
      EXPECT_TRUE(writeFileAtomically(file, round % 2 == 0 ? second : first));
    }
    isDone = true;
  });
  while (!isDone) {
    const auto bytes = readFile(file);
    EXPECT_TRUE(bytes && (*bytes == first || *bytes == second));
  }
  writer.join();
}

TEST(FileURL, EncodesWhatAnAddressCannotHold) {
  EXPECT_EQ(fileURL("/a b/ü#?%;x", false), "file:///a%20b/%C3%BC%23%3F%25%3Bx");
  EXPECT_EQ(fileURL("/var/group.x", true), "file:///var/group.x/");
  EXPECT_EQ(fileURL("/var/group.x/", true), "file:///var/group.x/");
  EXPECT_EQ(fileURL("here", false), "file://" + (fs::current_path() / "here").string());
}

TEST(FileManager, HasAContainerOnlyWhereTheFolderIs) {
  const support::TemporaryFolder folder;
  support::writeBytes(folder / "file", "");
  EXPECT_EQ(FileManager(folder.path()).containerURL(), folder.path());
  EXPECT_FALSE(FileManager(folder / "missing").containerURL());
  EXPECT_FALSE(FileManager(folder / "file").containerURL());
  EXPECT_FALSE(FileManager().containerURL());
}

}  // namespace
}  // namespace foundation
