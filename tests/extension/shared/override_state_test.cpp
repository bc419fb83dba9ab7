#include "shared/override_state.hpp"

#include <gtest/gtest.h>

#include "planner.hpp"

namespace mirune {
namespace {

TEST(OverrideState, IsLoggedAsItWasReadAndDecoded) {
  Planner planner;
  const std::string bytes = R"({ "A": "2026-11-21T00:00:00Z" })";
  support::writeBytes(planner.folder() / timelineOverrideFile, bytes);
  EXPECT_EQ(readOverrideState(planner.platform()), (OverrideState{{"A", moment("2026-11-21T00:00:00Z")}}));
  ASSERT_EQ(planner.log.size(), 2U);
  EXPECT_EQ(planner.log[0], bytes);
  EXPECT_TRUE(planner.log[1].starts_with("overrideCompletion ")) << planner.log[1];
}

TEST(OverrideState, ComesFromTheSecondFileOnly) {
  Planner planner;
  planner.write(std::string(overrideFile), {{"A", "2026-11-21T00:00:00Z"}});
  EXPECT_TRUE(readOverrideState(planner.platform()).empty());
  EXPECT_TRUE(planner.log.empty()) << "a missing file is nothing to report";
  EXPECT_TRUE(readOverrideState(platformAt({}, "")).empty());
}

TEST(OverrideState, IsEmptyWhereAnythingDoesNotDecode) {
  Planner planner;
  for (const char* bytes :
       {"", "[]", R"({"A": 1})", R"({"A": null})", R"({"A": "2026-11-21T00:00:00Z", "B": "soon"})"}) {
    support::writeBytes(planner.folder() / timelineOverrideFile, bytes);
    EXPECT_TRUE(readOverrideState(planner.platform()).empty()) << bytes;
  }
}

TEST(OverrideLookup, KnowsAUUIDInEitherCaseAndOtherTextsAsTheyAre) {
  const struct {
    const char* key;
    const char* id;
    bool found;
  } rows[] = {
      {"aaaaaaaa-0000-4000-8000-00000000000b", "AAAAAAAA-0000-4000-8000-00000000000B", true},
      {"AAAAAAAA-0000-4000-8000-00000000000B", "aaaaaaaa-0000-4000-8000-00000000000b", true},
      {"aaaaaaaa-0000-4000-8000-00000000000b", "Aaaaaaaa-0000-4000-8000-00000000000B", true},
      {"aaaaaaaa-0000-4000-8000-00000000000b", "aaaaaaaa-0000-4000-8000-00000000000c", false},
      {"buy-milk", "buy-milk", true},
      {"buy-milk", "Buy-Milk", false},
      {"", "", true},
      {"", "buy-milk", false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(OverrideLookup(OverrideState{{row.key, {}}}).contains(row.id), row.found) << row.key << " for " << row.id;
  }
}

}  // namespace
}  // namespace mirune
