#include "host/demo/demo_container.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "foundation/iso8601.hpp"
#include "foundation/user_defaults.hpp"
#include "support/temporary_folder.hpp"

namespace {

using support::readBytes;
using support::TemporaryFolder;
using support::writeBytes;

constexpr const char* today = "2026-11-21T08:00:00Z";
constexpr const char* tomorrow = "2026-11-22T08:00:00Z";

class DemoContainer : public testing::Test {
 protected:
  DemoContainer() {
    writeBytes(templates / "tasks.json", R"({"{day+0}": []})");
    writeBytes(templates / "events.json", R"({"{time+0 09:30}": []})");
    writeBytes(templates / "icons/cat.svg", "<svg>{no placeholder}</svg>");
    writeBytes(templates / "README.md", "{no placeholder}");
  }

  host::DemoContainer demo(const char* now) const {
    return {.folder = folder.path(), .templates = templates.path(), .now = *foundation::parseISO8601(now)};
  }
  std::int64_t theme() const {
    return foundation::UserDefaults::open(foundation::FileManager(folder.path()), "group.quorvanthimble.app")
        ->integer("app_theme_mode");
  }

  TemporaryFolder templates;
  TemporaryFolder folder;
};

std::string problemOf(const std::expected<void, std::string>& result) {
  return result ? "" : result.error();
}

TEST_F(DemoContainer, HoldsTheExpandedTemplatesAndAMarker) {
  auto deep = demo(today);
  deep.folder = folder.path() / "data" / "group";
  EXPECT_EQ(problemOf(deep.write()), "");
  EXPECT_EQ(readBytes(folder / "data/group/tasks.json"), R"({"2026/11/21": []})");
  EXPECT_EQ(readBytes(folder / "data/group/events.json"), R"({"2026-11-21T09:30:00Z": []})");
  EXPECT_EQ(readBytes(folder / "data/group/.mirune-demo"), "2026/11/21");
  EXPECT_EQ(readBytes(folder / "data/group/icons/cat.svg"), "<svg>{no placeholder}</svg>");
  EXPECT_FALSE(std::filesystem::exists(folder / "data/group/README.md"));
}

TEST_F(DemoContainer, IsWrittenAfreshWithoutWhatWasTickedOff) {
  ASSERT_TRUE(demo(today).write());
  writeBytes(folder / "interactive-widgets-state.json", "{}");
  writeBytes(folder / "interactive-widgets-state2.json", "{}");
  writeBytes(folder / "notes.txt", "mine");
  EXPECT_EQ(problemOf(demo(tomorrow).write()), "");
  EXPECT_EQ(readBytes(folder / "tasks.json"), R"({"2026/11/22": []})");
  EXPECT_EQ(readBytes(folder / ".mirune-demo"), "2026/11/22");
  EXPECT_FALSE(std::filesystem::exists(folder / "interactive-widgets-state.json"));
  EXPECT_FALSE(std::filesystem::exists(folder / "interactive-widgets-state2.json"));
  EXPECT_EQ(readBytes(folder / "notes.txt"), "mine");
}

TEST_F(DemoContainer, NeverTouchesAPlannersFiles) {
  for (const char* name : {"tasks.json", "interactive-widgets-state2.json", "icons/cat.svg"}) {
    const TemporaryFolder planner;
    writeBytes(planner / name, "real");
    auto over = demo(today);
    over.folder = planner.path();
    over.theme = 1;
    EXPECT_EQ(problemOf(over.write()),
              planner.path().string() + ": holds files of a planner, which a demo does not overwrite");
    EXPECT_EQ(problemOf(over.refresh()), "");
    EXPECT_EQ(readBytes(planner / name), "real");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(planner.path()), {}), 1);
  }
}

TEST_F(DemoContainer, IsKeptForItsDay) {
  EXPECT_EQ(problemOf(demo(today).refresh()), "");
  writeBytes(folder / "tasks.json", "changed");
  EXPECT_EQ(problemOf(demo(today).refresh()), "");
  EXPECT_EQ(readBytes(folder / "tasks.json"), "changed");
  EXPECT_EQ(problemOf(demo(tomorrow).refresh()), "");
  EXPECT_EQ(readBytes(folder / "tasks.json"), R"({"2026/11/22": []})");
}

TEST_F(DemoContainer, ThatWasCutShortIsWrittenAgain) {
  std::filesystem::create_directories(folder.path() / "tasks.json");  // stands in the way
  writeBytes(folder / ".mirune-demo", "2026/11/20");
  EXPECT_NE(problemOf(demo(today).write()), "");
  EXPECT_NE(readBytes(folder / ".mirune-demo"), "2026/11/21");
  std::filesystem::remove(folder.path() / "tasks.json");
  EXPECT_EQ(problemOf(demo(today).refresh()), "");
  EXPECT_EQ(readBytes(folder / "tasks.json"), R"({"2026/11/21": []})");
}

TEST_F(DemoContainer, SetsTheThemeOnlyWhereItIsNamed) {
  auto dark = demo(today);
  dark.theme = 1;
  EXPECT_EQ(problemOf(dark.write()), "");
  EXPECT_EQ(theme(), 1);
  EXPECT_EQ(problemOf(demo(today).write()), "");
  EXPECT_EQ(theme(), 1);
  dark.theme = 0;
  EXPECT_EQ(problemOf(dark.write()), "");
  EXPECT_EQ(theme(), 0);
}

TEST_F(DemoContainer, IsNotBegunWithABadTemplate) {
  writeBytes(templates / "moods.json", "{month+1}");
  EXPECT_EQ(problemOf(demo(today).write()),
            (templates.path() / "moods.json").string() + ": unknown placeholder {month+1}");
  EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(DemoContainer, SaysInOneLineWhatIsInTheWay) {
  auto nowhere = demo(today);
  nowhere.templates = templates.path() / "none";
  EXPECT_EQ(problemOf(nowhere.write()), nowhere.templates.string() + ": No such file or directory");

  auto blocked = demo(today);
  writeBytes(folder / "file", "");
  blocked.folder = folder.path() / "file" / "below";
  EXPECT_EQ(problemOf(blocked.write()), blocked.folder.string() + ": Not a directory");

  writeBytes(folder / "Library/Preferences/group.quorvanthimble.app.plist", "no property list");
  auto dark = demo(today);
  dark.theme = 1;
  EXPECT_EQ(problemOf(dark.write()), folder.path().string() + ": the settings cannot be read");
}

}  // namespace
