#include "program.hpp"

namespace program {
namespace {

using nlohmann::json;

/// A container with three tasks today, one of them with a line break, and one tomorrow.
class RenderCommand : public testing::Test {
 protected:
  RenderCommand() {
    const json days{{"2026/11/21", {item("Buy milk"), item("Call\nGrandma"), item("Water <b>plants</b>")}},
                    {"2026/11/22", {item("Rest")}}};
    support::writeBytes(folder / "container/tasks.json", days.dump());
  }

  std::string drawn(const std::string& file, const std::string& options = "", const std::string& widget = "tasks") {
    const auto result =
        run(folder.path(), "render " + widget + " systemSmall -o " + file + " " + options + world.options());
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.complaints, std::vector<std::string>());
    EXPECT_EQ(result.output, "");
    return support::readBytes(folder / file);
  }

  const support::TemporaryFolder folder;
  const World world;
};

TEST_F(RenderCommand, WritesWhatAWidgetSays) {
  EXPECT_EQ(drawn("a.txt"), "Tasks\nSaturday, November 21\n[ ] Buy milk\n[ ] Call Grandma\n[ ] Water <b>plants</b>\n");
  EXPECT_EQ(drawn("b.txt", "--at 2026-11-22T12:00:00Z"), "Tasks\nSunday, November 22\n[ ] Rest\n");
  EXPECT_EQ(drawn("c.txt", "", "Mirune_Widgets3"), "Habits\nSaturday, November 21\nNo more habits today\n");
}

TEST_F(RenderCommand, WritesThePlacedTree) {
  const auto tree = json::parse(drawn("a.json", "--screen 320x568"));
  EXPECT_EQ(tree.at("kind"), "Mirune_Widgets2");
  EXPECT_EQ(tree.at("family"), "systemSmall");
  EXPECT_EQ(tree.at("width"), 141);
  EXPECT_EQ(tree.at("height"), 141);
  EXPECT_EQ(tree.at("colorScheme"), "light");
  EXPECT_EQ(tree.at("drawn").at(0).at("name"), "paper1new_widget");
  const auto& row = tree.at("meaning").at(2);
  EXPECT_EQ(row.at("role"), "checkbox");
  EXPECT_EQ(row.at("label"), "Buy milk");
  EXPECT_EQ(row.at("id"), "AAAAAAAA-0000-4000-8000-000000000001");
  EXPECT_EQ(row.at("date"), "2026-11-20T23:00:00Z");
}

TEST_F(RenderCommand, TakesEveryScaleThatItOffers) {
  for (const std::string scale : {"0.1", "10"}) EXPECT_NE(drawn("a.png", "--scale " + scale), "") << scale;
  for (const std::string scale : {"0.09", "10.1", "0", "-1", "nan", "inf"}) {
    const auto result = run(folder.path(), "render tasks systemSmall -o b.png --scale=" + scale + world.options());
    EXPECT_EQ(result.exitCode, 2) << scale;
    EXPECT_EQ(result.complaints, std::vector<std::string>{"mirune: --scale: must be from 0.1 to 10"});
    EXPECT_EQ(result.debugLines, std::vector<std::string>()) << "nothing is asked for it";
  }
  EXPECT_FALSE(std::filesystem::exists(folder / "b.png"));
}

}  // namespace
}  // namespace program
