#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "program.hpp"

namespace program {
namespace {

TEST(SheetCommand, DrawsEveryFormTheSameEachTime) {
  const support::TemporaryFolder folder;
  for (const std::string ending : {".png", ".svg", ".pdf"}) {
    for (const std::string command : {"sheet", "render tasks systemSmall", "render habits accessoryCircular"}) {
      const auto drawn = [&](const std::string& name) {
        const auto result =
            run(folder.path(), command + " -o " + name + ending + " --now 2026-11-21T08:00:00Z" +
                                   " --timezone UTC --locale en_US --container " + (folder / "none").string());
        EXPECT_EQ(result.exitCode, 0) << command << ending;
        return support::readBytes(folder / (name + ending));
      };
      const std::string first = drawn("first");
      EXPECT_GT(first.size(), 500U) << command << ending;
      EXPECT_TRUE(first == drawn("second")) << command << ending << ": other bytes the second time";
    }
  }
}

TEST(SheetCommand, DrawsASheetForEachState) {
  const support::TemporaryFolder folder;
  std::filesystem::create_directory(folder / "scratch");
  ::setenv("TMPDIR", (folder / "scratch").c_str(), 1);
  const auto result = run(folder.path(), "sheet --states -o sheets --scale 0.5 --now 2026-11-21T08:00:00Z");
  ASSERT_EQ(result.exitCode, 0);
  std::map<std::string, std::string> states;
  std::istringstream lines(result.output);
  for (std::string file; std::getline(lines, file);) {
    const std::string bytes = support::readBytes(folder / file);
    EXPECT_EQ(bytes.substr(1, 3), "PNG") << file;
    const auto [same, isNew] = states.emplace(bytes, file);
    const bool isMeant = file.ends_with("/no-file.png") && same->second.ends_with("/empty.png");
    EXPECT_TRUE(isNew || isMeant) << file << " looks like " << same->second;
  }
  EXPECT_GE(states.size(), 20U);
  ::unsetenv("TMPDIR");
  EXPECT_TRUE(std::filesystem::is_empty(folder / "scratch"));

  support::writeBytes(folder / "file", "");
  EXPECT_EQ(run(folder.path(), "sheet --states -o file").exitCode, 1);
}

TEST(SheetCommand, IsAPictureOnly) {
  const support::TemporaryFolder folder;
  const auto result = run(folder.path(), "sheet -o sheet.txt");
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.complaints, std::vector<std::string>{"mirune: -o: 'sheet.txt' does not end in .png, .svg or .pdf"});
}

}  // namespace
}  // namespace program
