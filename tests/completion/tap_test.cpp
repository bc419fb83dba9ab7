// The command tap with the extension behind it.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/program.hpp"

namespace {

using nlohmann::json;
using support::readBytes;
using support::runMirune;

const std::string upperID = "0A1B2C3D-0000-4000-8000-00000000000A";
const std::string lowerID = "0a1b2c3d-0000-4000-8000-00000000000a";
const std::string otherID = "0A1B2C3D-0000-4000-8000-00000000000B";

class Tap : public testing::Test {
 protected:
  support::ProgramRun run(const std::string& arguments) const { return runMirune(folder, arguments); }

  /// A container with two open tasks for today, the first under that id.
  void writeTasks(const std::string& id) const {
    json items = json::array();
    for (const auto& each : {id, otherID}) {
      items.push_back({{"type", 1},
                       {"id", each},
                       {"title", "a task"},
                       {"isOn", false},
                       {"calid", "list"},
                       {"starttime", "2026-11-21T09:00:00Z"},
                       {"endtime", "2026-11-21T10:00:00Z"},
                       {"allday", false}});
    }
    support::writeBytes(folder / "container/tasks.json", json{{"2026/11/21", items}}.dump());
  }

  json today() const {
    const auto result = run("timeline tasks --json");
    EXPECT_EQ(result.exitCode, 0) << result.error;
    return json::parse(result.output, nullptr, false)["entries"][0];
  }

  json state(const std::string& number) const {
    return json::parse(readBytes(folder / ("container/interactive-widgets-state" + number + ".json")), nullptr, false);
  }

  support::TemporaryFolder folder;
};

TEST_F(Tap, TakesATaskOffTheList) {
  // A row carries the id in upper case, however the planner writes it; a person may copy it from either.
  const std::string pairs[][2] = {{upperID, upperID}, {lowerID, upperID}, {lowerID, lowerID}, {upperID, lowerID}};
  for (const auto& [written, tapped] : pairs) {
    writeTasks(written);
    ASSERT_EQ(today()["data"][0]["id"], upperID);
    const auto result = run("tap " + tapped);
    EXPECT_EQ(result.exitCode, 0) << result.error;
    EXPECT_EQ(result.output, "");

    const auto entry = today();
    ASSERT_EQ(entry["data"].size(), 1U) << entry;
    EXPECT_EQ(entry["data"][0]["id"], otherID);
    EXPECT_EQ(entry["count"], 1);
    EXPECT_EQ(entry["totalTaskCount"], 2);
    // Berlin's midnight.
    for (const char* number : {"", "2"}) EXPECT_EQ(state(number), (json{{tapped, "2026-11-20T23:00:00Z"}}));

    EXPECT_EQ(run("tap --clear " + tapped).exitCode, 0);
    for (const char* number : {"", "2"}) EXPECT_EQ(state(number), json::object());
    EXPECT_EQ(today()["data"].size(), 2U);
  }
}

TEST_F(Tap, MarksForTheDateThatIsGiven) {
  writeTasks(upperID);
  const struct {
    const char* options;
    const char* date;
  } cases[] = {
      {"--date 2026-11-23T12:34:56.789Z", "2026-11-23T12:34:56Z"},
      {"--date 2026-11-23T01:00:00+02:00", "2026-11-22T23:00:00Z"},
      {"--timezone Asia/Tokyo", "2026-11-20T15:00:00Z"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(run("tap x " + std::string(each.options)).exitCode, 0);
    EXPECT_EQ(state("2"), (json{{"x", each.date}})) << each.options;
  }
}

TEST_F(Tap, SaysInOneLineWhatIsWrong) {
  const auto path = folder.path().string();
  const struct {
    std::string arguments;
    int exitCode;
    std::string error;
  } cases[] = {
      {"tap", 2, "ID is required"},
      {"tap ''", 2, "ID: is empty"},
      {"tap \"$(printf 'a\\377')\"", 2, "ID: is not UTF-8 text"},
      {"tap x --date 2026-11-23T12:34:56Z --clear", 2, "excludes"},
      {"tap x --date today", 2, "--date: 'today' is not a moment such as"},
      {"tap x --timezone Nowhere", 2, "--timezone: 'Nowhere' is not a time zone such as Europe/Berlin"},
      {"tap x --locale xx_XX", 1, "there is no container at " + path + "/container"},
      {"tap x --container none", 1, "mirune: there is no container at " + path + "/none\n"},
      {"tap x --container ''", 1, "mirune: no container is named"},
  };
  for (const auto& each : cases) {
    const auto result = run(each.arguments);
    EXPECT_EQ(result.exitCode, each.exitCode) << each.arguments;
    EXPECT_EQ(result.output, "");
    EXPECT_TRUE(result.error.starts_with("mirune: ")) << result.error;
    EXPECT_NE(result.error.find(each.error), std::string::npos) << each.arguments << ": " << result.error;
    EXPECT_EQ(result.error.find('\n'), result.error.size() - 1) << result.error;
  }
  EXPECT_FALSE(exists(folder / "container"));
}

}  // namespace
