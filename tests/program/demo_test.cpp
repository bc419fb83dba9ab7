#include "program.hpp"

namespace program {
namespace {

TEST(DemoCommand, FillsTheWidgets) {
  const support::TemporaryFolder folder;
  const World world;
  const std::string around = " --now " + world.now + " --timezone " + world.timeZone;
  EXPECT_EQ(run(folder.path(), "demo container" + around).exitCode, 0);
  for (const std::string kind : {"tasks", "habits"}) {
    const auto timeline = jsonOutput(run(folder.path(), "timeline " + kind + " --json" + world.options()));
    EXPECT_GT(timeline.at("entries").at(0).at("count"), 0) << kind;
  }
  const auto doctor = run(folder.path(), "doctor" + world.options());
  EXPECT_EQ(doctor.exitCode, 0) << doctor.output;
}

TEST(DemoCommand, SetsThePlannersTheme) {
  for (const std::string theme : {"light", "dark"}) {
    const support::TemporaryFolder folder;
    const World world;
    EXPECT_EQ(run(folder.path(), "demo container --theme " + theme + " --now " + world.now).exitCode, 0);
    const std::string other = theme == "dark" ? "light" : "dark";
    EXPECT_EQ(
        run(folder.path(), "render tasks systemSmall -o out.json --appearance " + other + world.options()).exitCode, 0);
    EXPECT_EQ(nlohmann::json::parse(support::readBytes(folder / "out.json")).at("colorScheme"), theme);
  }
}

}  // namespace
}  // namespace program
