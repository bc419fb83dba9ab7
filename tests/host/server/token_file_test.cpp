#include "host/server/token_file.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "host/server/access.hpp"
#include "support/temporary_folder.hpp"

namespace host {
namespace {

namespace fs = std::filesystem;

foundation::RandomSource counting(std::uint64_t number = 0) {
  return [number]() mutable { return ++number; };
}

const std::string firstToken = newToken(counting());

fs::perms modeOf(const fs::path& path) {
  return fs::symlink_status(path).permissions();
}

TEST(TokenFolder, IsTheFirstThatIsSetAndAbsolute) {
  const struct {
    TokenVariables variables;
    const char* folder;
  } rows[] = {
      {{.runtimeDir = "/run/user/7", .stateHome = "/s", .home = "/h"}, "/run/user/7/mirune"},
      {{.runtimeDir = "", .stateHome = "/s", .home = "/h"}, "/s/mirune"},
      {{.runtimeDir = "run", .stateHome = "state", .home = "/h"}, "/h/.local/state/mirune"},
      {{.runtimeDir = "run", .stateHome = "state", .home = "h"}, ""},
      {{}, ""},
  };
  for (const auto& row : rows) EXPECT_EQ(tokenFolder(row.variables), row.folder);
}

class TokenFile : public testing::Test {
 protected:
  TokenFile() : folder(temporary / "state/mirune"), file(folder / "token-4127") {}

  std::string token(std::uint64_t number = 0) const {
    const auto result = tokenIn(folder, 4127, counting(number));
    EXPECT_TRUE(result) << result.error();
    return result.value_or("");
  }

  const support::TemporaryFolder temporary;
  const fs::path folder;
  const fs::path file;
};

TEST_F(TokenFile, IsForItsUserOnly) {
  const mode_t before = umask(0);
  EXPECT_EQ(token(), firstToken);
  umask(before);
  EXPECT_EQ(modeOf(folder), fs::perms::owner_all);
  EXPECT_EQ(modeOf(file), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(support::readBytes(file), firstToken + "\n");
}

TEST_F(TokenFile, StaysTheSameForAPort) {
  EXPECT_EQ(token(), firstToken);
  EXPECT_EQ(token(100), firstToken);
  EXPECT_NE(tokenIn(folder, 4128, counting(100)), firstToken);
}

TEST_F(TokenFile, IsMadeAfreshWhereItIsNotToBeTrusted) {
  const std::string known = "0123456789abcdef0123456789abcdef";
  const struct {
    const char* what;
    std::string text;
    unsigned mode;
    bool isKept;
  } rows[] = {
      {"good", known + "\n", 0600, true},
      {"without an end of line", known, 0600, true},
      {"readable by the group", known + "\n", 0640, false},
      {"readable by all", known + "\n", 0604, false},
      {"writable by all", known + "\n", 0602, false},
      {"empty", "", 0600, false},
      {"short", known.substr(1), 0600, false},
      {"no digits", std::string(32, 'x'), 0600, false},
      {"a cookie of its own", "0123456789abcdef; Path=/; x=abcd\n", 0600, false},
      {"zeros", std::string(64, '\0'), 0600, false},
  };
  for (const auto& row : rows) {
    support::writeBytes(file, row.text);
    fs::permissions(file, static_cast<fs::perms>(row.mode));
    EXPECT_EQ(token(), row.isKept ? known : firstToken) << row.what;
    EXPECT_EQ(modeOf(file), fs::perms::owner_read | fs::perms::owner_write) << row.what;
  }
}

TEST_F(TokenFile, FollowsNoSymbolicLink) {
  const fs::path other = temporary / "other";
  support::writeBytes(other, "0123456789abcdef0123456789abcdef\n");
  fs::permissions(other, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_directories(folder);
  fs::create_symlink(other, file);
  EXPECT_EQ(token(), firstToken);
  EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(file)));
  EXPECT_EQ(support::readBytes(other), "0123456789abcdef0123456789abcdef\n");
}

TEST_F(TokenFile, DoesNotWaitForAPipe) {
  fs::create_directories(folder);
  ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
  EXPECT_EQ(token(), firstToken);
}

TEST_F(TokenFile, SaysWhereItCannotBe) {
  support::writeBytes(temporary / "state", "a file");
  const auto none = tokenIn(folder, 4127, counting());
  ASSERT_FALSE(none);
  EXPECT_TRUE(none.error().starts_with(folder.string() + ": ")) << none.error();
  fs::remove(temporary / "state");
  fs::create_directories(file / "below");
  const auto taken = tokenIn(folder, 4127, counting());
  ASSERT_FALSE(taken);
  EXPECT_TRUE(taken.error().starts_with(file.string() + ": ")) << taken.error();
}

}  // namespace
}  // namespace host
