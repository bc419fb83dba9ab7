#include "shared/diagnosis.hpp"

#include <gtest/gtest.h>

#include <map>

#include "foundation/iso8601.hpp"
#include "shared/daily_mood.hpp"
#include "support/recorded_cases.hpp"
#include "support/temporary_folder.hpp"

namespace mirune {
namespace {

using messages::FileDiagnosis;
using messages::FileState;
using nlohmann::json;
using support::TemporaryFolder;
using Lines = std::vector<std::string>;

const std::string settingsFile = "Library/Preferences/group.quorvanthimble.app.plist";
const std::string firstState = "interactive-widgets-state.json";
const std::string secondState = "interactive-widgets-state2.json";
const std::string uuid = "0A1B2C3D-0000-4000-8000-00000000000A";
const std::string lowerUUID = "0a1b2c3d-0000-4000-8000-00000000000a";
const std::string stops = "is no UUID: drawing the timeline stops the extension";
const std::string harmless = "is no UUID: harmless while no list shows the item";

json item(int type, const std::string& id, bool isOn = false) {
  return {{"type", type},
          {"id", id},
          {"title", "SECRET"},
          {"isOn", isOn},
          {"calid", "c"},
          {"starttime", "2026-11-21T10:00:00Z"},
          {"endtime", "2026-11-21T11:00:00Z"},
          {"allday", false}};
}

json day(const std::string& key, const std::vector<json>& items) {
  return {{key, items}};
}

std::string settings(const std::string& members) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict>" + members + "</dict></plist>";
}

/// A container with these files, examined at 2026-11-21T08:00:00Z in UTC.
class Examined {
 public:
  using Files = std::map<std::string, std::string>;

  explicit Examined(const Files& files) {
    for (const auto& [name, bytes] : files) support::writeBytes(folder_ / name, bytes);
    platform_.now = foundation::parseMoment("2026-11-21T08:00:00Z").value();
    platform_.files = foundation::FileManager(folder_.path());
    diagnosis_ = diagnoseContainer(platform_);
    for (const auto& [name, bytes] : files) EXPECT_EQ(support::readBytes(folder_ / name), bytes) << name;
    EXPECT_EQ(exists(folder_ / settingsFile), files.contains(settingsFile));
  }

  const FileDiagnosis& operator[](const std::string& name) const {
    for (const auto& file : diagnosis_.files) {
      if (file.file == name) return file;
    }
    ADD_FAILURE() << "no " << name;
    return diagnosis_.files.front();
  }

  /// "FILE: PROBLEM", in the report's order.
  Lines problems() const {
    Lines lines;
    for (const auto& file : diagnosis_.files) {
      for (const auto& problem : file.problems) lines.push_back(file.file + ": " + problem);
    }
    return lines;
  }

  const messages::Diagnosis& whole() const { return diagnosis_; }

 private:
  TemporaryFolder folder_;
  uikit::Platform platform_;
  messages::Diagnosis diagnosis_;
};

TEST(Diagnosis, TellsAllFilesInOneOrderAndFindsNothingWrongWithNone) {
  const Examined empty({});
  Lines names;
  for (const auto& file : empty.whole().files) {
    names.push_back(file.file);
    EXPECT_EQ(file.state, FileState::missing) << file.file;
    EXPECT_EQ(file.modified, std::nullopt);
    EXPECT_NE(file.consequence, "");
  }
  EXPECT_EQ(names, (Lines{"tasks.json", "pendingtasks.json", "habits.json", "events.json", "moods.json", firstState,
                          secondState, settingsFile}));
  EXPECT_EQ(empty.problems(), Lines());
  EXPECT_TRUE(empty.whole().hasContainer);
}

TEST(Diagnosis, KnowsNoFilesWithoutAContainer) {
  EXPECT_EQ(diagnoseContainer(uikit::Platform()), messages::Diagnosis());
}

TEST(Diagnosis, FindsNothingWrongWithGoodFiles) {
  const auto ticked = json{{lowerUUID, "2026-11-21T00:00:00Z"}}.dump();
  const Examined good({
      {"tasks.json", day("2026/11/21", {item(1, uuid), item(3, "an event")}).dump()},
      {"pendingtasks.json", day("tasks", {item(1, uuid)}).dump()},
      {"habits.json", day("2026/12/05", {item(2, lowerUUID)}).dump()},
      {"events.json", day("2026/11/21", {item(3, "of another calendar")}).dump()},
      {"moods.json", R"({"2026/11/21": {"id": "", "name": "SECRET", "icon": "", "color": "", "isOriginalColor": true,
                         "hasBeenDeleted": false, "order": 1}})"},
      {firstState, ticked},
      {secondState, ticked},
      {settingsFile, settings("<key>app_theme_mode</key><integer>1</integer><key>color_calendar_offset</key>"
                              "<integer>-325</integer><key>color_calendar_offset_set</key><true/>")},
  });
  EXPECT_EQ(good.problems(), Lines());
  for (const auto& file : good.whole().files) {
    EXPECT_EQ(file.state, FileState::decoded) << file.file;
    EXPECT_GT(file.size, 0);
    EXPECT_TRUE(file.modified.has_value());
    EXPECT_EQ(file.consequence, "");
  }
}

TEST(Diagnosis, SaysWhatIsWrongAndWhere) {
  const std::string mood = R"("id": "", "name": "", "color": "", "isOriginalColor": true, "hasBeenDeleted": false)";
  json incomplete = item(1, uuid);
  incomplete.erase("calid");
  const auto badID = json{{"x", "2026-11-21T00:00:00Z"}}.dump();
  const struct {
    Examined::Files files;
    Lines problems;
  } cases[] = {
      // What does not decode.
      {{{"tasks.json", ""}}, {"tasks.json: bad JSON: empty"}},
      {{{"tasks.json", day("2026/11/21", {item(1, uuid), incomplete}).dump()}},
       {"tasks.json: 2026/11/21[1].calid: missing"}},
      {{{"pendingtasks.json", day("tasks", {item(4, uuid)}).dump()}},
       {"pendingtasks.json: tasks[0].type: not 1 (task), 2 (habit) or 3 (event)"}},
      {{{"moods.json", R"({"2026/11/21": {)" + mood + "}}"}}, {"moods.json: 2026/11/21.icon: missing"}},
      {{{"moods.json", R"({"2026/11/21": {"icon": 5, )" + mood + "}}"}}, {"moods.json: 2026/11/21.icon: not a text"}},
      {{{firstState, R"({"x": "yesterday"})"}}, {firstState + ": x: not an ISO 8601 date"}},
      {{{settingsFile, "<plist>"}}, {settingsFile + ": no property list whose root is a dictionary"}},
      // Ids of the items that a list shows, and of others.
      {{{"tasks.json", day("2026/11/21", {item(1, uuid), item(1, "a")}).dump()}},
       {"tasks.json: 2026/11/21[1].id: 'a' " + stops}},
      {{{"tasks.json", day("2026/12/05", {item(1, "")}).dump()}}, {"tasks.json: 2026/12/05[0].id: '' " + stops}},
      {{{"tasks.json", day("2026/12/06", {item(1, "a")}).dump()}}, {"tasks.json: 2026/12/06[0].id: 'a' " + harmless}},
      {{{"tasks.json", day("2026/11/20", {item(1, "a")}).dump()}}, {"tasks.json: 2026/11/20[0].id: 'a' " + harmless}},
      {{{"tasks.json", day("2026/11/21", {item(1, "a", true), item(2, "b")}).dump()}},
       {"tasks.json: 2026/11/21[0].id: 'a' " + harmless, "tasks.json: 2026/11/21[1].id: 'b' " + harmless}},
      {{{"pendingtasks.json",
         json{{"tasks", json::array({item(1, "a")})}, {"2026/11/21", json::array({item(1, "b")})}}.dump()}},
       {"pendingtasks.json: tasks[0].id: 'a' " + stops, "pendingtasks.json: 2026/11/21[0].id: 'b' " + harmless}},
      {{{"habits.json", day("2026/11/21", {item(2, "a"), item(1, "b")}).dump()}},
       {"habits.json: 2026/11/21[0].id: 'a' " + stops, "habits.json: 2026/11/21[1].id: 'b' " + harmless}},
      {{{"tasks.json", day("2026/11/21", {item(1, "x")}).dump()}, {firstState, badID}, {secondState, badID}},
       {"tasks.json: 2026/11/21[0].id: 'x' " + harmless}},
      {{{"tasks.json", day("2026/11/21", {item(1, "x")}).dump()}, {secondState, "{"}},
       {"tasks.json: 2026/11/21[0].id: 'x' " + stops, secondState + ": bad JSON: "}},
      // Keys that are no days.
      {{{"tasks.json", R"({"2026-11-21": [], "2026/11/21": [], "tasks": [], "": [], "2026/02/29": [], "2028/02/29": [],
                           "2026/1/1": [], "2026/11/21 ": []})"}},
       {"tasks.json: '' is no day of the form yyyy/MM/dd: never shown",
        "tasks.json: '2026-11-21' is no day of the form yyyy/MM/dd: never shown",
        "tasks.json: '2026/02/29' is no day of the form yyyy/MM/dd: never shown",
        "tasks.json: '2026/1/1' is no day of the form yyyy/MM/dd: never shown",
        "tasks.json: '2026/11/21 ' is no day of the form yyyy/MM/dd: never shown",
        "tasks.json: 'tasks' is no day of the form yyyy/MM/dd: never shown"}},
      {{{"pendingtasks.json", R"({"Tasks": []})"}},
       {"pendingtasks.json: 'Tasks' is no day of the form yyyy/MM/dd: never shown"}},
      {{{"moods.json", R"({"today": {"icon": "", )" + mood + "}}"}},
       {"moods.json: 'today' is no day of the form yyyy/MM/dd: never shown"}},
      {{{"events.json", R"({"today": []})"}}, {"events.json: 'today' is no day of the form yyyy/MM/dd: never shown"}},
      // Ticked items.
      {{{firstState, badID}, {secondState, badID}},
       {firstState + ": 'x' is no item of tasks.json, pendingtasks.json or habits.json: without effect",
        secondState + ": 'x' is no item of tasks.json, pendingtasks.json or habits.json: without effect"}},
      {{{"habits.json", "["}, {firstState, badID}, {secondState, badID}}, {"habits.json: not an object"}},
      {{{"tasks.json", day("tomorrow/1", {item(1, uuid)}).dump()},
        {firstState, json{{uuid, "2026-11-21T00:00:00Z"}}.dump()},
        {secondState, json{{uuid, "2026-11-22T00:00:00Z"}}.dump()}},
       {"tasks.json: 'tomorrow/1' is no day of the form yyyy/MM/dd: never shown",
        secondState + ": '" + uuid + "' has another date in " + firstState}},
      {{{"pendingtasks.json", day("tasks", {item(1, uuid)}).dump()},
        {firstState, json{{uuid, "2026-11-21T00:00:00Z"}}.dump()}},
       {secondState + ": '" + uuid + "' is in " + firstState + " only: its item counts as open"}},
      {{{"habits.json", day("2026/11/21", {item(2, uuid)}).dump()},
        {firstState, "{}"},
        {secondState, json{{uuid, "2026-11-21T00:00:00Z"}}.dump()}},
       {secondState + ": '" + uuid + "' is not in " + firstState}},
      // Settings.
      {{{settingsFile, settings("<key>app_theme_mode</key><string>1x</string>")}},
       {settingsFile + ": app_theme_mode: a text instead of a whole number: read as 1, dark theme"}},
      {{{settingsFile, settings("<key>app_theme_mode</key><array/><key>color_calendar_offset_set</key>"
                                "<integer>1</integer><key>color_calendar_offset</key><real>2.5</real>")}},
       {settingsFile + ": app_theme_mode: a value of another type instead of a whole number: read as 0, light theme",
        settingsFile + ": color_calendar_offset_set: a whole number instead of a boolean: read as true",
        settingsFile + ": color_calendar_offset: a number with a fraction instead of a whole number: read as 2"}},
      // 2026-11-21 is day 325 of its year; behind New Year the days count from 1 again.
      {{{settingsFile, settings("<key>color_calendar_offset_set</key><true/><key>color_calendar_offset</key>"
                                "<integer>-326</integer>")}},
       {settingsFile + ": color_calendar_offset: -326 gives 2026/11/21 the badge -1: drawing that day stops the "
                       "extension"}},
      {{{settingsFile, settings("<key>color_calendar_offset_set</key><true/><key>color_calendar_offset</key>"
                                "<integer>9223372036854775470</integer>")}},
       {settingsFile + ": color_calendar_offset: 9223372036854775470 gives 2026/12/04 a badge too large to count: "
                       "making the timelines stops the extension"}},
      {{{settingsFile, settings("<key>color_calendar_offset</key><integer>-326</integer>")}}, {}},
  };
  for (const auto& each : cases) {
    const auto problems = Examined(each.files).problems();
    ASSERT_EQ(problems.size(), each.problems.size()) << testing::PrintToString(problems);
    for (std::size_t index = 0; index < problems.size(); ++index) {
      const auto& expected = each.problems[index];
      // What the parser says of bad JSON is its own affair.
      const bool isWhole = !expected.ends_with("bad JSON: ");
      EXPECT_TRUE(isWhole ? problems[index] == expected : problems[index].starts_with(expected))
          << problems[index] << "\ninstead of\n"
          << expected;
    }
  }
}

TEST(Diagnosis, SaysWhatFollowsFromAFileThatIsNotToBeRead) {
  const Examined::Files files = {{"tasks.json/inside", ""}, {secondState + "/inside", ""}, {settingsFile, ""}};
  const Examined examined(files);
  EXPECT_EQ(examined["tasks.json"].state, FileState::unreadable);
  EXPECT_EQ(examined["tasks.json"].problems, Lines{"Is a directory"});
  EXPECT_EQ(examined["tasks.json"].consequence,
            "Tasks: no tasks on any day but the pending ones; the same in Events and Tasks");
  EXPECT_EQ(examined[secondState].problems, Lines{"Is a directory"});
  EXPECT_EQ(examined[settingsFile].state, FileState::refused);
  EXPECT_EQ(examined[settingsFile].consequence, "light theme; the colour offset follows the day, for it is not stored");
}

TEST(Diagnosis, NeverNamesATitle) {
  const Examined examined({
      {"tasks.json", day("2026/11/21", {item(1, "a"), item(1, "b", true)}).dump()},
      {"habits.json", R"({"2026/11/21": [{"type": 1, "id": "A", "title": "SECRET", "isOn": "SECRET"}]})"},
      {"events.json", R"({"2026/11/21": [{"title": "SECRET)"},
      {"moods.json", R"({"2026/11/21": {"id": "", "name": ["SECRET"]}})"},
      {firstState, R"({"a": "SECRET"})"},
      {settingsFile, settings("<key>app_theme_mode</key><string>SECRET</string>")},
  });
  EXPECT_EQ(examined.problems().size(), 7U);
  for (const auto& line : examined.problems()) EXPECT_EQ(line.find("SECRET"), std::string::npos) << line;
}

TEST(Diagnosis, StaysShortWhateverTheFilesHold) {
  std::vector<json> items;
  for (int count = 0; count < 20'000; ++count) items.push_back(item(1, "a"));
  std::string manyAccents;
  for (int count = 0; count < 1000; ++count) manyAccents += "é";
  const Examined examined({
      {"tasks.json", day("2026/11/21", items).dump()},
      {"pendingtasks.json", day("x" + manyAccents, {item(1, manyAccents)}).dump()},
      {"habits.json", std::string(100'000, '[')},
      {"events.json", "{\"" + manyAccents + "\": 1}"},
  });
  const auto& problems = examined["tasks.json"].problems;
  ASSERT_EQ(problems.size(), 21U);
  EXPECT_EQ(problems.back(), "and 19980 more of this kind");
  EXPECT_EQ(examined["habits.json"].state, FileState::refused);
  EXPECT_TRUE(examined["events.json"].problems.at(0).ends_with("…: not an array"));
  for (const auto& line : examined.problems()) {
    EXPECT_LT(line.size(), 450U) << line;
    EXPECT_NO_THROW(json(line).dump()) << "cut within a character: " << line;
  }
}

TEST(MoodFile, DecodesAsRecorded) {
  for (const auto& row : support::recordedCases("platform/moods.json")) {
    const auto file = foundation::decodeJSON<MoodFile>(row["file"].get<std::string>());
    if (!file) {
      EXPECT_TRUE(row["moods"].is_null()) << row << file.error().message();
      continue;
    }
    json moods = json::object();
    for (const auto& [key, mood] : *file) {
      moods[key] = {mood.id, mood.name, mood.icon, mood.color, mood.isOriginalColor, mood.hasBeenDeleted};
    }
    EXPECT_EQ(moods, row["moods"]) << row;
  }
}

}  // namespace
}  // namespace mirune
