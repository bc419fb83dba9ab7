#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <functional>

#include "foundation/file_descriptor.hpp"
#include "home/default_layout.hpp"
#include "home/home_store.hpp"
#include "home/listing.hpp"
#include "support/temporary_folder.hpp"

namespace {

using home::HomeStore;
using home::Place;

const std::string defaultContents = contents(home::defaultLayout());

/// A file that holds something else than the default layout.
std::string changedFile(const std::filesystem::path& file) {
  HomeStore store(file);
  EXPECT_TRUE(store.remove(1));
  EXPECT_TRUE(store.add("my own", "systemSmall", Place::home));
  return support::readBytes(file);
}

TEST(DamagedFile, IsKeptAsideAndTheDefaultLayoutReturns) {
  struct Case {
    const char* what;
    std::function<void(const std::filesystem::path&)> damage;
  };
  const auto truncated = [](std::uintmax_t size) {
    return [=](const std::filesystem::path& file) { std::filesystem::resize_file(file, size); };
  };
  const auto overwritten = [](std::size_t from, std::size_t count) {
    return [=](const std::filesystem::path& file) {
      std::string bytes = support::readBytes(file);
      bytes.replace(from, count, std::string(count, '\xA7'));
      support::writeBytes(file, bytes);
    };
  };
  const auto executed = [](const char* statements) {
    return [=](const std::filesystem::path& file) { execute(file, statements); };
  };
  const Case cases[] = {
      {"another format", [](const auto& file) { support::writeBytes(file, "{\"widgets\": []}\n"); }},
      {"a page of nothing", [](const auto& file) { support::writeBytes(file, std::string(4096, '\0')); }},
      {"two bytes", truncated(2)},
      {"half a header", truncated(50)},
      {"the header alone", truncated(100)},
      {"half a page", truncated(2048)},
      {"one page of three", truncated(4096)},
      {"a page and a half", truncated(6000)},
      {"no magic", overwritten(0, 16)},
      {"no page size", overwritten(16, 2)},
      {"an unknown format", overwritten(44, 4)},
      {"an unreadable schema", overwritten(100, 400)},
      {"an unreadable table", overwritten(4096, 100)},
      {"unreadable rows", overwritten(8192 - 200, 200)},
      {"no table", executed("DROP TABLE widgets")},
      {"another table", executed("DROP TABLE widgets; CREATE TABLE widgets (id INTEGER PRIMARY KEY)")},
      {"tables without a version", executed("PRAGMA user_version = 0; DROP TABLE widgets; CREATE TABLE t (a)")},
      {"a place that there is not", executed("UPDATE widgets SET place = 'desk' WHERE id = 3")},
      {"a position past all bounds", executed("UPDATE widgets SET position = 99999999999 WHERE id = 3")},
  };
  for (const auto& [what, damage] : cases) {
    SCOPED_TRACE(what);
    const support::TemporaryFolder folder;
    const auto file = folder / "home.db";
    changedFile(file);
    damage(file);
    const std::string damaged = support::readBytes(file);
    const auto aside = folder / "home.db.damaged-1";
    {
      HomeStore store(file);
      EXPECT_EQ(contents(store.widgets()), defaultContents);
      EXPECT_TRUE(store.isKept());
      EXPECT_NE(store.notice().value_or("").find(aside.string()), std::string::npos) << store.notice().value_or("");
      EXPECT_EQ(support::readBytes(aside), damaged);
      EXPECT_TRUE(store.remove(1));
    }
    HomeStore again(file);
    EXPECT_EQ(again.notice(), std::nullopt);
    EXPECT_EQ(again.widgets().size(), home::defaultLayout().size() - 1);
  }
}

TEST(DamagedFile, NeverTakesThePlaceOfAnEarlierOne) {
  const support::TemporaryFolder folder;
  const auto file = folder / "home.db";
  for (const char* bytes : {"first", "second", "third"}) {
    support::writeBytes(file, bytes);
    support::writeBytes(folder / "home.db-journal", std::string("journal of the ") + bytes);
    HomeStore store(file);
    EXPECT_EQ(contents(store.widgets()), defaultContents);
  }
  EXPECT_EQ(support::readBytes(folder / "home.db.damaged-1"), "first");
  EXPECT_EQ(support::readBytes(folder / "home.db.damaged-2"), "second");
  EXPECT_EQ(support::readBytes(folder / "home.db.damaged-3"), "third");
  EXPECT_EQ(HomeStore(file).notice(), std::nullopt);
}

/// Bytes all over a file broken in turn: there always is a home screen, and nothing is lost.
TEST(DamagedFile, OpensWhicheverByteIsBroken) {
  const support::TemporaryFolder folder;
  const auto file = folder / "home.db";
  const std::string whole = changedFile(file);
  for (std::size_t at = 0; at < whole.size(); at += at < 100 ? 3 : 151) {
    std::string bytes = whole;
    bytes[at] = static_cast<char>(bytes[at] ^ 0x5A);
    support::writeBytes(file, bytes);
    std::filesystem::remove(folder / "home.db.damaged-1");
    HomeStore store(file);
    EXPECT_TRUE(store.notice() || store.widgets().size() == 12) << "byte " << at;
    if (store.notice() && store.isKept()) {
      EXPECT_EQ(support::readBytes(folder / "home.db.damaged-1"), bytes) << "byte " << at;
    }
    if (!store.isKept()) {
      EXPECT_EQ(support::readBytes(file), bytes) << "byte " << at;
    }
    // A format that a later SQLite alone can write is shown as a read-only file is.
    const bool isReadOnlyFormat = at == 18;
    EXPECT_NE(store.move(store.widgets().front().id, 3).has_value(), isReadOnlyFormat) << "byte " << at;
  }
}

TEST(UnusableFile, LeavesAHomeScreenInMemory) {
  struct Case {
    const char* what;
    std::function<void(const std::filesystem::path&)> prepare;
  };
  const Case cases[] = {
      {"a newer version",
       [](const auto& file) {
         changedFile(file);
         execute(file, "PRAGMA user_version = 2; ALTER TABLE widgets ADD COLUMN colour TEXT");
       }},
      {"a folder", [](const auto& file) { std::filesystem::create_directory(file); }},
      {"a pipe", [](const auto& file) { ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0); }},
      {"a link that leads to itself", [](const auto& file) { std::filesystem::create_symlink(file, file); }},
  };
  for (const auto& [what, prepare] : cases) {
    SCOPED_TRACE(what);
    const support::TemporaryFolder folder;
    const auto file = folder / "home.db";
    prepare(file);
    const bool isFile = std::filesystem::symlink_status(file).type() == std::filesystem::file_type::regular;
    const std::string before = isFile ? support::readBytes(file) : "";
    HomeStore store(file);
    EXPECT_FALSE(store.isKept());
    EXPECT_NE(store.notice().value_or("").find(file.string()), std::string::npos) << store.notice().value_or("");
    EXPECT_EQ(contents(store.widgets()), defaultContents);
    EXPECT_TRUE(store.remove(1));
    EXPECT_EQ(store.add("k", "systemSmall", Place::home), 13);
    if (isFile) {
      EXPECT_EQ(support::readBytes(file), before);
    }
    EXPECT_FALSE(std::filesystem::exists(folder / "home.db.damaged-1"));
  }
}

TEST(UnusableFile, AFileInTheWayOfTheFolderLeavesAHomeScreenInMemory) {
  const support::TemporaryFolder folder;
  support::writeBytes(folder / "mirune", "a file");
  const HomeStore store(folder / "mirune/home.db");
  EXPECT_FALSE(store.isKept());
  EXPECT_EQ(contents(store.widgets()), defaultContents);
}

TEST(UnusableFile, AProcessThatHoldsTheFileOrTheFolderIsWaitedForOnlySoLong) {
  const support::TemporaryFolder folder;
  const auto file = folder / "home.db";
  const std::string before = changedFile(file);
  constexpr auto patience = std::chrono::milliseconds(30);
  {
    const foundation::FileDescriptor held(::open(folder.path().c_str(), O_RDONLY | O_DIRECTORY));
    ASSERT_EQ(::flock(held.get(), LOCK_EX), 0);
    EXPECT_FALSE(HomeStore(file, patience).isKept());
  }
  {
    database::Database other(file, std::chrono::milliseconds(0));
    HomeStore store(file, patience);
    const auto transaction = other.begin();
    const auto refused = store.remove(2);
    EXPECT_EQ(refused.error().message, "The change could not be stored: database is locked.");
    EXPECT_EQ(store.widgets().size(), 12U);
  }
  EXPECT_EQ(support::readBytes(file), before);
}

}  // namespace
