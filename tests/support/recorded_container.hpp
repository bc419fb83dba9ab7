#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"

namespace support {

inline const char* const suitePath = "Library/Preferences/group.quorvanthimble.app.plist";

/// Settings as the property list that holds them; whole numbers and booleans only.
inline std::string settingsList(const nlohmann::json& settings) {
  std::string members;
  for (const auto& [key, value] : settings.items()) {
    members += "<key>" + key + "</key>";
    members += value.is_boolean() ? (value.get<bool>() ? "<true/>" : "<false/>")
                                  : "<integer>" + std::to_string(value.get<long long>()) + "</integer>";
  }
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict>" + members + "</dict></plist>";
}

/// The names of the recorded timelines; none fails the test.
inline std::vector<std::string> recordedTimelines() {
  std::vector<std::string> names;
  std::error_code error;
  for (const auto& folder : std::filesystem::directory_iterator(MIRUNE_TEST_DATA "/platform/timelines", error)) {
    names.push_back(folder.path().filename().string());
  }
  std::ranges::sort(names);
  EXPECT_FALSE(names.empty()) << "no recorded timelines";
  return names;
}

/// A copy of a recorded container, for whoever builds entries may write into it.
struct RecordedContainer {
  explicit RecordedContainer(const std::string& name) {
    const std::filesystem::path recorded = std::filesystem::path(MIRUNE_TEST_DATA "/platform/timelines") / name;
    const auto situation = nlohmann::json::parse(readBytes(recorded / "case.json"));
    now = situation.at("now");
    timeZone = situation.at("timezone");
    locale = situation.at("locale");
    expected = nlohmann::json::parse(readBytes(recorded / "expected.json"));
    std::filesystem::copy(recorded / "container", folder.path(), std::filesystem::copy_options::recursive);
    writeBytes(folder / suitePath, settingsList(situation.at("defaults")));
  }

  std::string now;
  std::string timeZone;
  std::string locale;
  nlohmann::json expected;
  TemporaryFolder folder;
};

/// The entries of tasks or habits as they were recorded: names are English there, and of what is theirs alone the item
/// type of habits and the dates of items are left out.
inline nlohmann::json asRecorded(nlohmann::json entries, const std::string& list) {
  for (auto& entry : entries) {
    for (auto& item : entry.at("data")) item.erase("date");
    if (list == "habits") entry["itemtype"] = 0;
  }
  return entries;
}

/// The entries of moods as they were recorded: without the ids, which are random, and the days by their text, which are
/// the days of the month once more.
inline nlohmann::json asRecordedMoods(nlohmann::json entries) {
  for (auto& entry : entries) {
    for (const auto& day : entry.at("monthdata")) EXPECT_EQ(entry.at("monthdatadict").at(day.at("text")), day);
    EXPECT_EQ(entry.at("monthdatadict").size(), entry.at("monthdata").size());
    entry.erase("monthdatadict");
    for (const char* list : {"data", "monthdata"}) {
      for (auto& day : entry.at(list)) day.erase("id");
    }
  }
  return entries;
}

/// One line for each value in which two JSON values differ; empty where they are equal.
inline std::string differences(const nlohmann::json& actual, const nlohmann::json& expected) {
  std::string lines;
  for (const auto& step : nlohmann::json::diff(expected, actual)) {
    const nlohmann::json::json_pointer place(step.at("path").get<std::string>());
    lines += place.to_string() + ": " + (actual.contains(place) ? actual.at(place).dump() : "nothing") +
             " instead of " + (expected.contains(place) ? expected.at(place).dump() : "nothing") + "\n";
  }
  return lines;
}

}  // namespace support
