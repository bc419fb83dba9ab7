// The command doctor with the extension behind it.

#include <gtest/gtest.h>

#include <chrono>
#include <nlohmann/json.hpp>

#include "support/program.hpp"

namespace {

using nlohmann::json;
using support::runMirune;
using support::writeBytes;

TEST(Doctor, ReportsAndExitsByWhatItFound) {
  const support::TemporaryFolder folder;
  const auto path = (folder / "container").string();
  auto result = runMirune(folder, "doctor");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(result.output,
            "problem: there is no container at " + path + "\n  effect: every widget shows an empty day\n");

  std::filesystem::create_directory(path);
  result = runMirune(folder, "doctor");
  EXPECT_EQ(result.exitCode, 0) << result.output;
  EXPECT_TRUE(result.output.starts_with("container: " + path + "\n")) << result.output;
  EXPECT_TRUE(result.output.ends_with("no problems\n")) << result.output;
  EXPECT_NE(result.output.find("\nmoods.json  "), std::string::npos) << result.output;
  EXPECT_TRUE(std::filesystem::is_empty(path)) << "doctor wrote something";

  writeBytes(folder / "container/tasks.json", R"({"2026/11/21": [{"type": 1}]})");
  using namespace std::chrono;
  const sys_seconds modified = sys_days(November / 21 / 2026) + 4h + 1min;  // the program is told 08:00
  last_write_time(folder / "container/tasks.json", file_clock::from_sys(modified));
  result = runMirune(folder, "doctor");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.output.find("3 h ago, 29 B, does not decode\n"), std::string::npos) << result.output;
  EXPECT_NE(result.output.find("  problem: 2026/11/21[0].id: missing\n  effect: Tasks: no tasks"), std::string::npos)
      << result.output;
  EXPECT_EQ(runMirune(folder, "doctor extra").exitCode, 2);
}

TEST(Doctor, PrintsJSON) {
  const support::TemporaryFolder folder;
  const auto run = [&](int exitCode) {
    const auto result = runMirune(folder, "doctor --json");
    EXPECT_EQ(result.exitCode, exitCode) << result.error;
    return json::parse(result.output, nullptr, false);
  };
  const auto container = (folder / "container").string();
  EXPECT_EQ(run(1), (json{{"container", container}, {"hasContainer", false}, {"files", json::array()}}));
  writeBytes(folder / "container/tasks.json", "[]");
  const auto file = run(1)["files"][0];
  EXPECT_TRUE(file["modified"].is_string());
  EXPECT_EQ(file["file"], "tasks.json");
  EXPECT_EQ(file["state"], "refused");
  EXPECT_EQ(file["size"], 2);
  EXPECT_EQ(file["problems"], json{"not an object"});
}

TEST(Doctor, SurvivesWhatStopsATimeline) {
  const support::TemporaryFolder folder;
  writeBytes(folder / "container/habits.json", R"({"2026/11/21": [{"type": 2, "id": "seven", "title": "", "isOn": false,
      "calid": "", "starttime": "2026-11-21T08:00:00Z", "endtime": "2026-11-21T08:00:00Z", "allday": false}]})");
  EXPECT_EQ(runMirune(folder, "timeline habits").exitCode, 1);
  const auto result = runMirune(folder, "doctor");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.output.find("2026/11/21[0].id: 'seven' is no UUID: drawing the timeline stops the extension"),
            std::string::npos)
      << result.output << result.error;
}

}  // namespace
