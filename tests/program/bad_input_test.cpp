#include "program.hpp"
#include "support/ordinary_rights.hpp"
#include "support/recorded_cases.hpp"

namespace program {
namespace {

using nlohmann::json;

constexpr const char* day = "2026/11/21";
constexpr const char* settings = "container/Library/Preferences/group.quorvanthimble.app.plist";

class BadInput : public testing::Test {
 protected:
  ProgramRun ask(const std::string& arguments) const { return run(folder.path(), arguments + world.options()); }

  /// The files of the folder itself, which should be those that were there before.
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const auto& each : std::filesystem::directory_iterator(folder.path())) names.push_back(each.path().filename());
    return names;
  }

  void writeTask(const json& task) const {
    support::writeBytes(folder / "container/tasks.json", json{{day, json::array({task})}}.dump());
  }

  const support::TemporaryFolder folder;
  const World world;
};

TEST_F(BadInput, IsAnsweredInOneLine) {
  writeTask(item("Buy milk"));
  const struct {
    const char* arguments;
    int exitCode;
    const char* says;
    const char* lists;
  } rows[] = {
      {"timeline chores", 2, "kind 'chores'", "habits (Mirune_Widgets3)"},
      {"timeline ''", 2, "kind ''", "tasks (Mirune_Widgets2)"},
      {"render chores systemSmall -o a.png", 2, "kind 'chores'", "mood (Mirune_Widgets5)"},
      {"render tasks systemTiny -o a.png", 2, "family 'systemTiny'", "systemSmall, systemMedium"},
      {"render tasks systemSmall -o a.gif", 2, "a.gif", ".png, .svg, .pdf, .txt or .json"},
      {"render tasks systemSmall -o a.png --at noon", 2, "'noon'", "2026-11-21T08:00:00Z"},
      {"timeline tasks --screen big", 2, "screen 'big'", "390x844"},
      {"timeline tasks --appearance blue", 2, "appearance 'blue'", "light or dark"},
      {"timeline tasks --planner-url javascript://x", 2, "planner address 'javascript://x'", "https://planner.example"},
      {"timeline tasks --system-version 3", 2, "system version '3'", "14 to 99"},
      {"render tasks systemSmall -o none/a.png", 1, "none/a.png", "No such file or directory"},
      {"render tasks systemSmall -o a/.png", 2, "a/.png", ".png"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.arguments);
    const auto result = ask(row.arguments);
    EXPECT_EQ(result.exitCode, row.exitCode);
    EXPECT_EQ(result.output, "");
    ASSERT_EQ(result.complaints.size(), 1U);
    EXPECT_NE(result.complaints[0].find(row.says), std::string::npos) << result.complaints[0];
    EXPECT_NE(result.complaints[0].find(row.lists), std::string::npos) << result.complaints[0];
  }
  EXPECT_EQ(files(), std::vector<std::string>{"container"});
}

TEST_F(BadInput, LeavesNoHalfWrittenFile) {
  std::filesystem::create_directories(folder / "a.png");
  const auto result = ask("render tasks systemSmall -o a.png");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.complaints, std::vector<std::string>{"mirune: a.png: Is a directory"});
  EXPECT_EQ(files(), std::vector<std::string>{"a.png"});
}

TEST_F(BadInput, FallsBackWhereThereIsNothingToRead) {
  std::filesystem::create_directories(folder / "empty");
  support::writeBytes(folder / "file", "no folder");
  std::filesystem::create_directories(folder / "folders/tasks.json");
  support::writeBytes(folder / "damaged/Library/Preferences/group.quorvanthimble.app.plist", "damaged");
  support::writeBytes(folder / "closed/tasks.json", json{{day, {item("out of reach")}}}.dump());
  std::filesystem::permissions(folder / "closed", std::filesystem::perms::none);
  support::startWithOrdinaryRights();
  for (const std::string container : {"missing", "file", "empty", "folders", "damaged", "closed", ""}) {
    SCOPED_TRACE(container);
    const World there{.container = container};
    const auto timeline = jsonOutput(run(folder.path(), "timeline tasks --json" + there.options()));
    ASSERT_EQ(timeline.at("entries").size(), 15U);
    EXPECT_EQ(timeline.at("entries").at(0).at("count"), 0);
    const auto drawn = run(folder.path(), "render tasks systemSmall -o out.txt" + there.options());
    EXPECT_EQ(drawn.exitCode, 0);
    EXPECT_EQ(support::readBytes(folder / "out.txt"), "Tasks\nSaturday, November 21\nNo more tasks today\n");
    std::filesystem::remove(folder / "out.txt");
  }
  std::filesystem::permissions(folder / "closed", std::filesystem::perms::owner_all);
  EXPECT_EQ(support::readBytes(folder / "damaged/Library/Preferences/group.quorvanthimble.app.plist"), "damaged");
}

TEST_F(BadInput, FallsBackForEveryItemFileThatIsRefused) {
  int refused = 0;
  for (const auto& row : support::recordedCases("platform/items.json")) {
    if (!row.at("days").is_null()) continue;
    ++refused;
    support::writeBytes(folder / "container/tasks.json", row.at("file").get<std::string>());
    const auto result = ask("timeline tasks --json");
    const auto timeline = jsonOutput(result);
    EXPECT_EQ(timeline.at("entries").at(0).at("totalTaskCount"), 0) << row.at("file");
    EXPECT_EQ(result.debugLines.size(), 1U) << "of the missing pending tasks: " << row.at("file");
  }
  EXPECT_GT(refused, 10);
}

TEST_F(BadInput, ReportsWhyTheExtensionStopped) {
  const std::string wide = "9223372036854775807";
  const struct {
    std::string id;
    std::string offset;
    const char* command;
    int exitCode;
    std::string says;
  } rows[] = {
      {"milk\nand bread", "1", "timeline tasks", 1, "an item's id is no UUID: 'milk and bread'"},
      {"milk", "1", "render tasks systemSmall -o a.png", 1, "an item's id is no UUID: 'milk'"},
      {"", "1", "snapshot tasks", 1, "an item's id is no UUID: ''"},
      {"", "1", "timeline habits", 0, ""},
      {"AAAAAAAA-0000-4000-8000-000000000001", "-400", "timeline tasks", 0, ""},
      {"AAAAAAAA-0000-4000-8000-000000000001", "-400", "render tasks systemSmall -o a.png", 1,
       "the number of a badge is negative: -75"},
      {"AAAAAAAA-0000-4000-8000-000000000001", wide, "timeline tasks", 1, "A sum is out of range."},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.id + " " + row.offset + " " + row.command);
    writeTask(item("Buy milk", row.id));
    support::writeBytes(folder / settings,
                        "<plist version=\"1.0\"><dict><key>color_calendar_offset_set</key><true/>"
                        "<key>color_calendar_offset</key><integer>" +
                            row.offset + "</integer></dict></plist>");
    const auto result = ask(row.command);
    EXPECT_EQ(result.exitCode, row.exitCode);
    const auto expected = row.exitCode == 0
                              ? std::vector<std::string>()
                              : std::vector<std::string>{"mirune: the widget extension stopped: " + row.says};
    EXPECT_EQ(result.complaints, expected);
  }
  EXPECT_EQ(files(), std::vector<std::string>{"container"});
}

TEST_F(BadInput, DrawsTitlesOfAnyKindAndLength) {
  const std::string titles[] = {
      "", "   ", std::string("a\0b", 3), "\u202E\u2066\uFEFF", std::string(200000, 'x'), "e" + [] {
        std::string marks;
        for (int count = 0; count < 20000; ++count) marks += "\u0301";
        return marks;
      }()};
  for (const std::string& title : titles) {
    writeTask(item(title));
    const auto result = ask("render tasks systemSmall -o out.png");
    EXPECT_EQ(result.exitCode, 0) << title.substr(0, 20);
    EXPECT_EQ(result.complaints, std::vector<std::string>()) << title.substr(0, 20);
    EXPECT_EQ(ask("render tasks systemSmall -o out.txt").exitCode, 0);
    EXPECT_NE(support::readBytes(folder / "out.txt").find("\n[ ] "), std::string::npos) << "it is listed";
  }
}

TEST_F(BadInput, ShowsADayOf500Events) {
  json events = json::array();
  for (int count = 0; count < 500; ++count) {
    const auto time = [](int minutes) {
      const std::string text = std::to_string(100'000 + minutes / 60 * 1'000 + minutes % 60);
      return "2026-11-21T" + text.substr(1, 2) + ":" + text.substr(4, 2) + ":00Z";
    };
    json event = item("event " + std::to_string(count));
    event.update({{"type", 3}, {"starttime", time(count)}, {"endtime", time(count + 600)}});
    events.push_back(std::move(event));
  }
  support::writeBytes(folder / "container/events.json", json{{day, events}}.dump());
  for (const std::string kind : {"events", "combined"}) {
    const auto result = ask("render " + kind + " systemMedium -o out.txt --at 2026-11-21T16:30:00Z");
    EXPECT_EQ(result.complaints, std::vector<std::string>()) << kind;
    // Those that end after 17:30 by the clocks of Berlin.
    EXPECT_NE(support::readBytes(folder / "out.txt").find("event 391, "), std::string::npos) << kind;
    EXPECT_NE(support::readBytes(folder / "out.txt").find("+106 more\n"), std::string::npos) << kind;
  }
  const auto timeline = jsonOutput(ask("timeline events --json"));
  EXPECT_EQ(timeline.at("entries").size(), 1U + 1'000U + 14U);
  EXPECT_EQ(timeline.at("entries").at(0).at("data").size(), 500U);
  EXPECT_EQ(timeline.at("entries").at(0).at("data").at(499).at("title"), "event 499");
}

TEST_F(BadInput, SaysSoWhereAnAnswerIsTooLargeToSend) {
  json many = json::array();
  for (int count = 0; count < 2400; ++count) many.push_back(item(std::string(2000, 'x')));
  support::writeBytes(folder / "container/pendingtasks.json", json{{"tasks", many}}.dump());
  const auto result = ask("timeline tasks");
  EXPECT_EQ(result.exitCode, 1);
  ASSERT_EQ(result.complaints.size(), 1U);
  EXPECT_NE(result.complaints[0].find("too large"), std::string::npos) << result.complaints[0];
}

}  // namespace
}  // namespace program
