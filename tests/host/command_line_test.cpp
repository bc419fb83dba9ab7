// Runs the program itself, with the fake extension behind it.

#include <gtest/gtest.h>

#include "foundation/json.hpp"
#include "support/program.hpp"

namespace {

using support::readBytes;
using support::TemporaryFolder;
using support::writeBytes;

using foundation::JSON;

class CommandLine : public testing::Test {
 protected:
  /// The program's folders are all below a temporary one.
  support::ProgramRun run(const std::string& arguments, const std::string& redirection = ">output") const {
    const auto path = folder.path().string();
    return support::runIn(folder,
                          "LANG=de_DE.UTF-8 XDG_DATA_HOME=" + path + "/data MIRUNE_RESOURCES=" + path +
                              "/resources MIRUNE_EXTENSION=" FAKE_EXTENSION,
                          arguments, redirection);
  }

  JSON runForJSON(const std::string& arguments) const {
    const auto result = run(arguments);
    EXPECT_EQ(result.exitCode, 0) << arguments << ": " << result.error;
    return JSON::parse(result.output, nullptr, false);
  }

  TemporaryFolder folder;
};

TEST_F(CommandLine, SaysInOneLineWhatIsWrong) {
  struct Case {
    const char* arguments;
    int exitCode;
    const char* error;  // what the line contains
  };
  const Case cases[] = {
      {"dance", 2, "dance"},
      {"--dance", 2, "--dance"},
      {"timeline", 2, "KIND is required"},
      {"timeline tasks more", 2, "more"},
      {"timeline gallery moods", 2, "moods"},
      {"gallery --screen", 2, "--screen"},
      {"gallery --system-version x", 2, "--system-version"},
      {"gallery --container $(printf '\\377')", 2, "the container's path is not UTF-8 text"},
      {"gallery --planner-url $(printf '\\377')", 2, "--planner-url: is not UTF-8 text"},
      {"gallery --now yesterday", 2, "--now: 'yesterday' is not a moment such as 2026-11-21T08:00:00Z"},
      {"timeline unknown", 2, "unknown kind 'unknown': tasks, moods"},
      {"timeline broken", 1, "a file is broken"},
      {"timeline die", 1, "the widget extension stopped: item 7 has no identifier"},
      {"timeline mismatch", 1, "the widget extension answered something else than it was asked"},
      {"render tasks systemSmall", 2, "--output is required"},
      {"render tasks systemSmall -o -", 2, "-o: '-' does not end in"},
      {"render undated systemSmall -o a.png", 1, "an entry without a date"},
      {"render unknown systemSmall -o a.png", 2, "unknown kind"},
      {"demo --theme blue", 2, "--theme"},
      {"demo --timezone Europe/Nowhere", 2, "--timezone: 'Europe/Nowhere' is not a time zone such as Europe/Berlin"},
      {"demo --now x", 2, "--now: 'x' is not a moment"},
      {"demo", 1, "resources/demo: No such file or directory"},
  };
  for (const auto& each : cases) {
    const auto result = run(each.arguments);
    EXPECT_EQ(result.exitCode, each.exitCode) << each.arguments;
    EXPECT_EQ(result.output, "") << each.arguments;
    EXPECT_TRUE(result.error.starts_with("mirune: ")) << result.error;
    EXPECT_NE(result.error.find(each.error), std::string::npos) << each.arguments << ": " << result.error;
    EXPECT_EQ(result.error.find('\n'), result.error.size() - 1) << result.error;
  }
  EXPECT_FALSE(std::filesystem::exists(folder / "a.png"));
}

TEST_F(CommandLine, HelpsOnStandardOutput) {
  const auto help = run("");
  EXPECT_EQ(help.exitCode, 0);
  EXPECT_EQ(help.error, "");
  EXPECT_EQ(help.output, run("--help").output);
  for (const char* command :
       {"gallery", "timeline", "placeholder", "snapshot", "render", "tap", "demo", "doctor", "device-name"}) {
    EXPECT_NE(help.output.find("\n  " + std::string(command) + " "), std::string::npos) << help.output;
    EXPECT_NE(run(command + std::string(" --help")).output.find("mirune " + std::string(command)), std::string::npos);
  }
  EXPECT_EQ(run("--version").output, "mirune 0.1.0\n");
}

TEST_F(CommandLine, ListsTheGallery) {
  EXPECT_EQ(run("gallery").output,
            "tasks  Fake_Widgets   Tasks  systemSmall systemMedium  Today's tasks\n"
            "moods  Fake_Widgets2  Moods  systemLarge               A month\n");
  EXPECT_EQ(runForJSON("gallery --json")[1], JSON::parse(R"({"kind": "Fake_Widgets2", "shortName": "moods",
      "displayName": "Moods", "description": "A month", "families": ["systemLarge"]})"));
}

TEST_F(CommandLine, ListsEntries) {
  EXPECT_EQ(run("timeline tasks --timezone Asia/Tokyo").output,
            "2026-11-21 09:00:00  title: \"morning\", items: 2 items\n"
            "2026-11-21 21:00:00  title: \"noon\", items: 2 items\n"
            "policy: after 2026-11-22 09:00:00\n");
  EXPECT_EQ(runForJSON("timeline tasks --json")["policy"], JSON({{"after", "2026-11-22T00:00:00Z"}}));
  EXPECT_EQ(runForJSON("snapshot tasks --json")["entries"][0]["title"], "sample");
  EXPECT_EQ(runForJSON("placeholder tasks --json")["entries"][0]["title"], "waiting");
}

TEST_F(CommandLine, TellsTheExtensionAboutTheWorld) {
  const auto path = folder.path().string();
  const auto world = [&](const std::string& options) {
    return runForJSON("timeline world --json --now 2026-11-21T08:00:00Z " + options)["entries"][0]["world"];
  };
  EXPECT_EQ(world(""), JSON({{"now", "2026-11-21T08:00:00Z"},
                             {"timeZone", "Europe/Berlin"},
                             {"locale", "de_DE"},
                             {"container", path + "/data/mirune/group.quorvanthimble.app"},
                             {"screen", "390x844"},
                             {"systemVersion", 17},
                             {"appearance", "light"},
                             {"isRedacted", false},
                             {"plannerURL", "https://planner.example"}}));
  EXPECT_EQ(world("--timezone Asia/Tokyo --locale ja_JP --container here --screen 320x568 --system-version 15 "
                  "--appearance dark --redacted --planner-url https://x/"),
            JSON({{"now", "2026-11-21T08:00:00Z"},
                  {"timeZone", "Asia/Tokyo"},
                  {"locale", "ja_JP"},
                  {"container", path + "/here"},
                  {"screen", "320x568"},
                  {"systemVersion", 15},
                  {"appearance", "dark"},
                  {"isRedacted", true},
                  {"plannerURL", "https://x/"}}));
}

TEST_F(CommandLine, RendersTheEntryOfTheMoment) {
  struct Case {
    const char* arguments;
    const char* title;
    const char* now;
    const char* format;
  };
  const Case cases[] = {
      {"tasks systemSmall -o f.png --now 2026-11-21T11:59:59Z", "morning", "2026-11-21T11:59:59Z", "png"},
      {"tasks systemSmall -o f.TXT --now 2026-11-21T12:00:00Z", "noon", "2026-11-21T12:00:00Z", "text"},
      {"tasks systemSmall -o f.json --now 2026-11-20T00:00:00Z", "morning", "2026-11-20T00:00:00Z", "json"},
      {"tasks systemSmall -o f.png --now 2026-11-20T00:00:00Z --at 2026-11-21T15:00:00Z", "noon",
       "2026-11-21T15:00:00Z", "png"},
      {"empty systemSmall -o f.png --now 2026-11-20T00:00:00Z", "waiting", "2026-11-20T00:00:00Z", "png"},
  };
  for (const auto& each : cases) {
    const auto result = run("render --scale 3 " + std::string(each.arguments));
    EXPECT_EQ(result.exitCode, 0) << result.error;
    EXPECT_EQ(result.output + result.error, "");
    const std::string file = std::string(each.arguments).find("f.TXT") != std::string::npos    ? "f.TXT"
                             : std::string(each.arguments).find("f.json") != std::string::npos ? "f.json"
                                                                                               : "f.png";
    const auto request = JSON::parse(readBytes(folder / file));
    EXPECT_EQ(request["entry"]["title"], each.title) << each.arguments;
    EXPECT_EQ(request["family"], "systemSmall");
    EXPECT_EQ(request["format"], each.format);
    EXPECT_EQ(request["scale"], 3.0);
    EXPECT_EQ(request["world"]["now"], each.now);
  }
}

TEST_F(CommandLine, NoticesAFullDisk) {
  const auto result = run("gallery", ">/dev/full");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.error, "mirune: standard output: No space left on device\n");
  EXPECT_EQ(run("gallery", ">&-").exitCode, 1);
}

TEST_F(CommandLine, IsQuietWhenTheReaderGoesAway) {
  const auto result = run("gallery", "| true; sleep 0.1");
  EXPECT_EQ(result.error, "");
}

TEST_F(CommandLine, WritesADemo) {
  writeBytes(folder / "resources/demo/tasks.json", "{day+0}");
  const auto container = folder.path().string() + "/data/mirune/group.quorvanthimble.app";
  const auto result = run("demo --now 2026-11-21T23:30:00Z");
  EXPECT_EQ(result.exitCode, 0) << result.error;
  EXPECT_EQ(result.output, container + "\n");
  EXPECT_EQ(readBytes(folder / "data/mirune/group.quorvanthimble.app/tasks.json"), "2026/11/22");
  EXPECT_EQ(run("demo other --timezone UTC --now 2026-11-21T23:30:00Z").output, "other\n");
  EXPECT_EQ(readBytes(folder / "other/tasks.json"), "2026/11/21");
  writeBytes(folder / "planner/tasks.json", "real");
  EXPECT_EQ(run("demo planner").exitCode, 1);
  EXPECT_EQ(run("demo planner --keep").output, "planner\n");
  EXPECT_EQ(readBytes(folder / "planner/tasks.json"), "real");
}

}  // namespace
