#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/recorded_cases.hpp"
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

/// An event as it was recorded: without its id, its colour in bytes.
inline void reduceEvent(nlohmann::json& event) {
  event.erase("id");
  if (!event.at("color").is_object()) return;
  for (auto& part : event["color"]) part = std::lround(part.get<double>() * 255);
}

/// The sides of a combined entry are recorded by what tells entries apart.
inline nlohmann::json reducedSide(const nlohmann::json& entry) {
  return {{"date", entry.at("date")}, {"count", entry.at("count")}, {"image", entry.at("image")}};
}

/// The entries of a list as they were recorded: names are English there, of identifiers and of the item type of habits
/// nothing is said.
inline nlohmann::json asRecorded(nlohmann::json entries, const std::string& list) {
  for (auto& entry : entries) {
    if (list == "tasks" || list == "habits") {
      for (auto& item : entry.at("data")) item.erase("date");
    }
    if (list == "habits") entry["itemtype"] = 0;
    if (list == "events") {
      for (auto& event : entry.at("data")) reduceEvent(event);
    }
    if (list == "combined") {
      for (const char* side : {"taskEntry", "eventEntry"}) entry[side] = reducedSide(entry.at(side));
    }
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

/// Recorded events with the answered times where these are right: where either of two is recorded, that of the two that
/// was answered; for locales that write times otherwise, any.
inline nlohmann::json withTimesOf(const nlohmann::json& actual, nlohmann::json expected, const std::string& locale) {
  for (std::size_t i = 0; i < expected.size() && i < actual.size(); ++i) {
    const auto& answered = actual[i].at("data");
    auto& data = expected[i].at("data");
    for (std::size_t k = 0; k < data.size() && k < answered.size(); ++k) {
      auto& time = data[k].at("time");
      const auto& own = answered[k].at("time");
      if (hasOtherShortTimes(locale)) {
        time = own;
      } else if (time.is_array()) {
        time = std::ranges::find(time, own) != time.end() ? own : time.front();
      }
    }
  }
  return expected;
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
