#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <fstream>
#include <iterator>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>
#include <string>

namespace {

/// Reads a template and expands its placeholders as if today were 10 November 2026, in UTC.
nlohmann::json expanded(const std::string& name) {
  std::ifstream file(MIRUNE_SHARE "/demo/" + name + ".json");
  const std::string form{std::istreambuf_iterator<char>(file), {}};
  const auto dated = [](const std::smatch& match, const char* format) {
    const std::chrono::sys_days today = std::chrono::year{2026} / 11 / 10;
    const std::time_t moment =
        std::chrono::system_clock::to_time_t(today + std::chrono::days(std::stoi(match[2].str())));
    std::string day(10, ' ');
    std::strftime(day.data(), day.size() + 1, format, std::gmtime(&moment));
    return day;
  };
  const std::regex placeholder(R"(\{(day|time)([+-]\d+)(?: ([0-2]\d:[0-5]\d))?\})");
  std::string result;
  auto rest = form.begin();
  for (std::sregex_iterator match(form.begin(), form.end(), placeholder), end; match != end; ++match) {
    result.append(rest, (*match)[0].first);
    result +=
        (*match)[1] == "day" ? dated(*match, "%Y/%m/%d") : dated(*match, "%Y-%m-%d") + "T" + (*match)[3].str() + ":00Z";
    rest = (*match)[0].second;
  }
  return nlohmann::json::parse(result.append(rest, form.end()), nullptr, false);
}

const std::regex dayKey(R"(\d{4}/\d\d/\d\d)"), moment(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ)"), colour("#[0-9A-F]{6}"),
    uuid("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}");

std::string text(const nlohmann::json& record, const char* key) {
  return record.contains(key) && record.at(key).is_string() ? record.at(key).get<std::string>() : "";
}

bool reads(const std::string& value, const std::regex& form) {
  return std::regex_match(value, form);
}

bool isFlag(const nlohmann::json& record, const char* key) {
  return record.contains(key) && record.at(key).is_boolean();
}

TEST(Demo, ItemsAreComplete) {
  struct File {
    std::string name;
    int type = 0;
  };
  std::set<std::string> ids;
  for (const File& file : {File{"tasks", 1}, File{"pendingtasks", 1}, File{"habits", 2}, File{"events", 3}}) {
    const nlohmann::json days = expanded(file.name);
    ASSERT_TRUE(days.is_object() && !days.empty()) << file.name;
    for (const auto& [key, items] : days.items()) {
      EXPECT_TRUE(file.name == "pendingtasks" ? key == "tasks" : reads(key, dayKey)) << file.name << ' ' << key;
      for (const nlohmann::json& item : items) {
        SCOPED_TRACE(file.name + ' ' + item.dump());
        EXPECT_EQ(item.value("type", 0), file.type);
        EXPECT_TRUE(reads(text(item, "id"), uuid) && ids.insert(text(item, "id")).second);
        EXPECT_TRUE(!text(item, "title").empty() && !text(item, "calid").empty());
        EXPECT_TRUE(isFlag(item, "isOn") && isFlag(item, "allday"));
        EXPECT_TRUE(reads(text(item, "starttime"), moment) && reads(text(item, "endtime"), moment));
        EXPECT_LT(text(item, "starttime"), text(item, "endtime"));
        EXPECT_TRUE(!item.contains("colorHex") || reads(text(item, "colorHex"), colour));
      }
    }
  }
}

TEST(Demo, MoodsAreCompleteAndReachOverAMonthBack) {
  const nlohmann::json moods = expanded("moods");
  ASSERT_TRUE(moods.is_object());
  EXPECT_TRUE(moods.contains("2026/10/01"));
  EXPECT_TRUE(moods.contains("2026/11/10"));
  std::map<std::string, std::string> nameOf;
  int guests = 0;
  for (const auto& [key, mood] : moods.items()) {
    SCOPED_TRACE(key + ' ' + mood.dump());
    EXPECT_TRUE(reads(key, dayKey));
    EXPECT_TRUE(reads(text(mood, "id"), uuid) && reads(text(mood, "color"), colour));
    EXPECT_FALSE(text(mood, "name").empty());
    const std::string file = text(mood, "icon") + ".svg";
    const bool isShipped = std::ifstream(MIRUNE_SHARE "/images/" + file).is_open();
    EXPECT_TRUE(isShipped || std::ifstream(MIRUNE_SHARE "/demo/icons/" + file).is_open());
    guests += isShipped ? 0 : 1;
    EXPECT_EQ(nameOf.emplace(text(mood, "id"), text(mood, "name")).first->second, text(mood, "name"));
    EXPECT_TRUE(isFlag(mood, "isOriginalColor") && isFlag(mood, "hasBeenDeleted"));
  }
  EXPECT_GE(nameOf.size(), 12U);
  EXPECT_EQ(guests, 1) << "days with a cat of the planner's own";
}

}  // namespace
