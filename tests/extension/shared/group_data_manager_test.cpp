#include "shared/group_data_manager.hpp"

#include <gtest/gtest.h>

#include "planner.hpp"

namespace mirune {
namespace {

using Lines = std::vector<std::string>;

TEST(GroupDataManager, AddsTheEndingToEveryName) {
  Planner planner;
  support::writeBytes(planner.folder() / "tasks.json", "bytes");
  support::writeBytes(planner.folder() / "tasks.json.json", "others");
  EXPECT_EQ(GroupDataManager::read(planner.platform(), "tasks"), "bytes");
  EXPECT_EQ(GroupDataManager::read(planner.platform(), "tasks.json"), "others");
  EXPECT_EQ(planner.log, Lines());
}

TEST(GroupDataManager, PrintsALineForEachReadThatFails) {
  support::TemporaryFolder parent;
  const auto container = parent / "a group, ümläut";
  const std::string line = "file://" + parent.path().string() + "/a%20group,%20%C3%BCml%C3%A4ut/ groupURLnilllllreaddd";

  Lines log;
  EXPECT_EQ(GroupDataManager::read(platformAt({}, container, &log), "tasks"), std::nullopt);
  EXPECT_EQ(GroupDataManager::read(platformAt({}, {}, &log), "tasks"), std::nullopt);
  EXPECT_EQ(log, Lines(2, "groupURLnilllll")) << "no container";

  log.clear();
  std::filesystem::create_directories(container / "habits.json");
  EXPECT_EQ(GroupDataManager::read(platformAt({}, container, &log), "tasks"), std::nullopt);
  EXPECT_EQ(GroupDataManager::read(platformAt({}, container, &log), "habits"), std::nullopt) << "a folder";
  EXPECT_EQ(log, Lines(2, line));
}

}  // namespace
}  // namespace mirune
