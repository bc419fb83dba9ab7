#include "program.hpp"

namespace program {
namespace {

TEST(GalleryCommand, ListsAllKinds) {
  const support::TemporaryFolder folder;
  const auto gallery = jsonOutput(run(folder.path(), "gallery --json" + World().options()));
  std::vector<std::string> kinds;
  for (const auto& widget : gallery) kinds.push_back(widget.at("kind"));
  EXPECT_EQ(kinds,
            (std::vector<std::string>{"Mirune_Widgets5", "Mirune_Widgets6", "Mirune_Widgets2", "Mirune_Widgets3",
                                      "Mirune_Widgets4", "Mirune_Widgets", "Mirune_Widgets7", "Mirune_Widgets8"}));
  EXPECT_EQ(gallery.at(2), nlohmann::json::parse(R"({"kind": "Mirune_Widgets2", "shortName": "tasks",
      "displayName": "Tasks", "description": "Keep track of your tasks.",
      "families": ["accessoryCircular", "accessoryRectangular", "systemSmall", "systemMedium"]})"));
  const auto old = jsonOutput(run(folder.path(), "gallery --json --system-version 15" + World().options()));
  EXPECT_EQ(old.at(2).at("families"), nlohmann::json::parse(R"(["systemSmall", "systemMedium"])"));
}

}  // namespace
}  // namespace program
