#pragma once

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <fstream>
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

}  // namespace support
