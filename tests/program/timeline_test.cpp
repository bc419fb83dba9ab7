#include "foundation/words.hpp"
#include "program.hpp"
#include "support/recorded_container.hpp"

namespace program {
namespace {

/// The cases were recorded without translations: their lists have English names.
void translateNames(nlohmann::json& entries, const foundation::Words& words) {
  for (auto& [member, value] : entries.items()) {
    if (member == "name" && value.is_string()) value = words.localized(value.get<std::string>());
    if (value.is_structured()) translateNames(value, words);
  }
}

TEST(TimelineCommand, PrintsWhatWasRecorded) {
  for (const std::string& name : support::recordedTimelines()) {
    SCOPED_TRACE(name);
    const support::RecordedContainer recorded(name);
    const World world{.container = recorded.folder.path().string(),
                      .now = recorded.now,
                      .timeZone = recorded.timeZone,
                      .locale = recorded.locale};
    const auto words =
        foundation::Words::load(MIRUNE_SHARE "/words", foundation::Locale::named(recorded.locale).value());
    const std::pair<std::string, std::string> kinds[] = {{"tasks", "Mirune_Widgets2"},
                                                         {"habits", "Mirune_Widgets3"},
                                                         {"events", "Mirune_Widgets4"},
                                                         {"calendar", "Mirune_Widgets7"},
                                                         {"combined", "Mirune_Widgets8"}};
    for (const auto& [list, kind] : kinds) {
      const auto timeline = jsonOutput(run(recorded.folder.path(), "timeline " + list + " --json" + world.options()));
      const auto entries = support::asRecorded(timeline.at("entries"), list);
      auto expected = recorded.expected.at(list);
      translateNames(expected, words);
      if (list == "events") expected = support::withTimesOf(entries, expected, recorded.locale);
      EXPECT_EQ(support::differences(entries, expected), "") << list;
      EXPECT_EQ(timeline.at("policy"), "atEnd");
      EXPECT_EQ(timeline.at("kind"), kind);
    }
    for (const std::string kind : {"mood", "moods"}) {
      const auto timeline = jsonOutput(run(recorded.folder.path(), "timeline " + kind + " --json" + world.options()));
      EXPECT_EQ(support::differences(support::asRecordedMoods(timeline.at("entries")), recorded.expected.at("moods")),
                "")
          << kind;
      EXPECT_EQ(timeline.at("policy").at("after"), recorded.expected.at("reload"));
      EXPECT_EQ(timeline.at("kind"), kind == "mood" ? "Mirune_Widgets5" : "Mirune_Widgets6");
    }
  }
}

TEST(TimelineCommand, PassesDebugLinesOn) {
  const support::TemporaryFolder folder;
  const auto result = run(folder.path(), "timeline tasks" + World().options());
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.debugLines, (std::vector<std::string>{"groupURLnilllll", "groupURLnilllll"}));
  EXPECT_FALSE(std::filesystem::exists(folder / "container")) << "no container is made";
}

}  // namespace
}  // namespace program
