#include "host/live/container_files.hpp"

#include <gtest/gtest.h>

#include <functional>

#include "support/temporary_folder.hpp"

namespace host {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class Container : public testing::Test {
 protected:
  Container() { fill(); }

  void fill() const {
    write("tasks.json", R"({"a": 1})");
    write("events.json", R"({"b": 2})");
    write("icons/a.svg", "<svg/>");
    write("Library/Preferences/group.plist", "<plist/>");
  }
  void write(const char* name, const std::string& text, std::chrono::seconds age = 60s) const {
    support::writeBytes(folder / name, text);
    fs::last_write_time(folder / name, fs::file_time_type::clock::now() - age);
  }
  ContainerFiles read(const ContainerFiles& before = {}) const { return ContainerFiles::of(folder.path(), before); }

  const support::TemporaryFolder folder;
};

TEST_F(Container, DiffersByTheContentOfItsFiles) {
  const struct {
    const char* what;
    std::function<void()> change;
    bool differs;
    bool looksDifferent;
  } rows[] = {
      {"nothing", [] {}, false, false},
      {"a touched file", [this] { write("tasks.json", R"({"a": 1})", 50s); }, false, false},
      {"another content of the same size", [this] { write("tasks.json", R"({"a": 2})", 40s); }, true, false},
      {"a longer file", [this] { write("tasks.json", R"({"a": 11})"); }, true, false},
      {"contents that changed places",
       [this] { write("tasks.json", R"({"b": 2})", 30s), write("events.json", R"({"a": 1})", 30s); }, true, false},
      {"a further file", [this] { write("moods.json", "{}"); }, true, false},
      {"a file less", [this] { fs::remove(folder / "tasks.json"); }, true, false},
      {"another name", [this] { fs::rename(folder / "tasks.json", folder / "moods.json"); }, true, false},
      {"no planner's file", [this] { write("notes.txt", "x"), write("a.json.part", "x"); }, false, false},
      {"settings", [this] { write("Library/Preferences/group.plist", "<plist />"); }, false, true},
      {"settings of the same size", [this] { write("Library/Preferences/group.plist", "<plisT/>", 20s); }, false, true},
      {"an icon", [this] { write("icons/a.svg", "<svg />"); }, false, true},
      {"a further icon", [this] { write("icons/b.svg", "<svg/>"); }, false, true},
      {"the icons gone", [this] { fs::remove_all(folder / "icons"); }, false, true},
      {"all gone", [this] { fs::remove_all(folder.path()); }, true, true},
  };
  for (const auto& row : rows) {
    fs::remove_all(folder.path());
    fill();
    const ContainerFiles before = read();
    row.change();
    const ContainerFiles after = read(before);
    EXPECT_EQ(after.differsFrom(before), row.differs) << row.what;
    EXPECT_EQ(after.looksDifferentFrom(before), row.looksDifferent) << row.what;
    EXPECT_FALSE(after.isHalfWritten()) << row.what;
    const ContainerFiles again = read(after);
    EXPECT_FALSE(again.differsFrom(after) || again.looksDifferentFrom(after)) << row.what;
  }
}

TEST_F(Container, WaitsForAWriterButNotForEver) {
  const struct {
    const char* what;
    std::string text;
    std::chrono::seconds age;
    bool isHalfWritten;
  } rows[] = {
      {"half, just now", R"({"a": [1, 2)", 0s, true},
      {"empty, just now", "", 0s, true},
      {"whole, just now", R"({"a": 3})", 0s, false},
      {"half, a minute ago", R"({"a": [1, 2)", 60s, false},
      {"half, from the future", R"({"a": [1, 2)", -3600s, false},
  };
  for (const auto& row : rows) {
    write("tasks.json", row.text, row.age);
    EXPECT_EQ(read().isHalfWritten(), row.isHalfWritten) << row.what;
  }
}

TEST_F(Container, IsReadAgainWhereAWriterWasNotDone) {
  const ContainerFiles before = read();
  write("tasks.json", R"({"a": )", 0s);
  const ContainerFiles half = read(before);
  EXPECT_TRUE(half.isHalfWritten());
  EXPECT_TRUE(read(half).isHalfWritten()) << "still";
  const auto time = fs::last_write_time(folder / "tasks.json");
  support::writeBytes(folder / "tasks.json", R"({"b":1})");
  fs::last_write_time(folder / "tasks.json", time);
  const ContainerFiles whole = read(half);
  EXPECT_FALSE(whole.isHalfWritten());
  EXPECT_TRUE(whole.differsFrom(before));
}

TEST(ContainerFiles, OfAFolderThatIsMissingAreNone) {
  const support::TemporaryFolder folder;
  const auto missing = ContainerFiles::of(folder / "missing", {});
  EXPECT_FALSE(missing.differsFrom({}));
  EXPECT_FALSE(missing.isHalfWritten());
  support::writeBytes(folder / "missing/tasks.json", "{}");
  EXPECT_TRUE(ContainerFiles::of(folder / "missing", missing).differsFrom(missing));
}

}  // namespace
}  // namespace host
