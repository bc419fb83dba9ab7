#include <gtest/gtest.h>

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

TEST(SheetCommand, IsAPictureOnly) {
  const support::TemporaryFolder folder;
  const auto result = run(folder.path(), "sheet -o sheet.txt");
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.complaints, std::vector<std::string>{"mirune: -o: 'sheet.txt' does not end in .png, .svg or .pdf"});
}

}  // namespace
}  // namespace program
