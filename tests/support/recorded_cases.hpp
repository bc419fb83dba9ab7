#pragma once

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <fstream>
#include <set>
#include <string>

namespace support {

/// The rows of a file of recorded cases: "platform/iso8601.json". A file that cannot be read or is empty fails the
/// test.
inline nlohmann::json recordedCases(const std::string& name) {
  std::ifstream file(std::string(MIRUNE_TEST_DATA "/") + name);
  nlohmann::json rows = nlohmann::json::parse(file, nullptr, false);
  if (!rows.is_array() || rows.empty()) {
    ADD_FAILURE() << "no recorded cases in " << name;
    return nlohmann::json::array();
  }
  return rows;
}

// The cases were recorded with a later edition of the locale data, which says other things of these locales.

inline bool hasOtherWeekdayLetters(const std::string& locale) {
  return locale == "ru_RU" || locale == "en_AU";
}
inline bool hasOtherFirstWeekday(const std::string& locale) {
  return locale == "zh_CN";
}
inline bool hasOtherShortTimes(const std::string& locale) {
  static const std::set<std::string> locales = {"el_GR", "hi_IN", "ar_EG", "ar_SA", "en_AU", "en_CA"};
  return locales.contains(locale);
}

}  // namespace support
