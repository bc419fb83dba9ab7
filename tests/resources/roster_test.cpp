#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>

namespace {

TEST(FontRoster, NamesFilesThatAreInstalled) {
  std::ifstream file(MIRUNE_SHARE "/fonts/roster.json");
  const nlohmann::json roster = nlohmann::json::parse(file, nullptr, false);
  ASSERT_TRUE(roster.is_object());
  EXPECT_TRUE(std::filesystem::is_directory(roster["system"]["folder"].get<std::string>()));
  for (const nlohmann::json& font : roster["fonts"]) {
    for (const char* member : {"file", "italicFile"}) {
      if (!font.contains(member)) continue;
      EXPECT_TRUE(std::filesystem::is_regular_file(font[member].get<std::string>()))
          << font[member] << " is missing; " << font["package"] << " brings it";
    }
  }
}

}  // namespace
