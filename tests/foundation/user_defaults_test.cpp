#include "foundation/user_defaults.hpp"

#include <gtest/gtest.h>

#include "foundation/property_list.hpp"
#include "support/temporary_folder.hpp"

namespace foundation {
namespace {

constexpr std::string_view suite = "group.test";

std::filesystem::path fileOf(const support::TemporaryFolder& folder) {
  return folder / "Library" / "Preferences" / "group.test.plist";
}

std::string xmlWith(std::string_view members) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict>" + std::string(members) +
         "</dict></plist>";
}

/// {"k": "v"}
const std::string smallBinary = [] {
  std::string bytes = "bplist00";
  bytes += "\xD1\x01\x02\x51k\x51v\x08\x0B\x0D" + std::string(6, '\0') + "\x01\x01";
  for (const char number : {'\3', '\0', '\x0F'}) bytes += std::string(7, '\0') + number;
  return bytes;
}();

UserDefaults open(const support::TemporaryFolder& folder) {
  return UserDefaults::open(FileManager(folder.path()), suite).value();
}

TEST(UserDefaults, ConvertAsThePlatformDoes) {
  const struct {
    const char* stored;
    std::int64_t integer;
    bool boolean;
  } rows[] = {
      {"<integer>7</integer>", 7, true},
      {"<integer>-3</integer>", -3, true},
      {"<true/>", 1, true},
      {"<false/>", 0, false},
      {"<real>1.9</real>", 1, true},
      {"<real>0.5</real>", 0, true},
      {"<real>0</real>", 0, false},
      {"<real>1e300</real>", INT64_MAX, true},
      {"<string>1</string>", 1, true},
      {"<string> 1</string>", 1, true},
      {"<string>1.9</string>", 1, true},
      {"<string>1e3</string>", 1, true},
      {"<string>-3</string>", -3, true},
      {"<string> 12abc</string>", 12, true},
      {"<string>0</string>", 0, false},
      {"<string>0.5</string>", 0, false},
      {"<string>0x10</string>", 0, false},
      {"<string></string>", 0, false},
      {"<string>NO</string>", 0, false},
      {"<string>YES</string>", 0, true},
      {"<string>y</string>", 0, true},
      {"<string>TRUE</string>", 0, true},
      {"<string>99999999999999999999</string>", INT64_MAX, true},
      {"<string>-99999999999999999999</string>", INT64_MIN, true},
      {"<date>2024-03-07T10:00:00Z</date>", 0, false},
      {"<data>AQ==</data>", 0, false},
      {"<array><integer>1</integer></array>", 0, false},
      {"<dict/>", 0, false},
  };
  const support::TemporaryFolder folder;
  for (const auto& row : rows) {
    support::writeBytes(fileOf(folder), xmlWith("<key>k</key>" + std::string(row.stored)));
    const UserDefaults defaults = open(folder);
    EXPECT_EQ(defaults.integer("k"), row.integer) << row.stored;
    EXPECT_EQ(defaults.boolean("k"), row.boolean) << row.stored;
    EXPECT_EQ(defaults.integer("absent"), 0);
    EXPECT_FALSE(defaults.boolean("absent"));
  }
}

TEST(UserDefaults, AreMadeWhereTheyAreMissing) {
  const support::TemporaryFolder folder;
  UserDefaults defaults = open(folder);
  EXPECT_FALSE(std::filesystem::exists(folder / "Library")) << "reading makes nothing";
  defaults.set("offset", std::int64_t{-42});
  defaults.set("isSet", true);
  EXPECT_EQ(defaults.integer("offset"), -42);
  EXPECT_EQ(open(folder).integer("offset"), -42);
  EXPECT_TRUE(open(folder).boolean("isSet"));
  EXPECT_TRUE(support::readBytes(fileOf(folder)).starts_with("<?xml"));
}

TEST(UserDefaults, KeepTheFormAndWhatOthersWroteMeanwhile) {
  const support::TemporaryFolder folder;
  support::writeBytes(fileOf(folder), smallBinary);
  UserDefaults first = open(folder);
  UserDefaults second = open(folder);
  first.set("first", std::int64_t{1});
  second.set("second", true);
  first.set("first", std::int64_t{2});

  const std::string bytes = support::readBytes(fileOf(folder));
  EXPECT_TRUE(bytes.starts_with("bplist00"));
  const auto list = PropertyList::parse(bytes);
  ASSERT_TRUE(list);
  EXPECT_EQ(list->value("k"), PropertyList::Value("v"));
  EXPECT_EQ(list->value("first"), PropertyList::Value(std::int64_t{2}));
  EXPECT_EQ(list->value("second"), PropertyList::Value(true));
}

TEST(UserDefaults, LeaveADamagedFileAsItIs) {
  const support::TemporaryFolder folder;
  UserDefaults defaults = open(folder);
  for (const char* damaged : {"", "garbage", "<plist><array/></plist>"}) {
    support::writeBytes(fileOf(folder), damaged);
    EXPECT_FALSE(UserDefaults::open(FileManager(folder.path()), suite)) << damaged;
    defaults.set("k", true);
    EXPECT_EQ(support::readBytes(fileOf(folder)), damaged);
  }
}

TEST(UserDefaults, NeedAContainerAndAPlainSuiteName) {
  const support::TemporaryFolder folder;
  EXPECT_FALSE(UserDefaults::open(FileManager(), suite));
  EXPECT_FALSE(UserDefaults::open(FileManager(folder / "missing"), suite));
  EXPECT_FALSE(UserDefaults::open(FileManager(folder.path()), "../outside"));
  EXPECT_FALSE(UserDefaults::open(FileManager(folder.path()), ""));

  support::writeBytes(folder / "Library", "a file in the way");
  EXPECT_FALSE(UserDefaults::open(FileManager(folder.path()), suite));
}

TEST(UserDefaults, AreSilentWhereTheyCannotBeWritten) {
  const support::TemporaryFolder folder;
  UserDefaults defaults = open(folder);
  std::filesystem::create_directories(fileOf(folder).parent_path().parent_path());
  support::writeBytes(fileOf(folder).parent_path(), "a file in the way");
  defaults.set("k", std::int64_t{1});
  EXPECT_EQ(defaults.integer("k"), 0);
}

}  // namespace
}  // namespace foundation
