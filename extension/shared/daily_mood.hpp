#pragma once

#include <map>
#include <string>

#include "foundation/json_decoder.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// A mood as the user defined it. Fields are called as the members of its JSON object.
struct MiruneDailyMood {
  std::string id = {};
  std::string name = {};
  std::string icon = {};   ///< of an image asset
  std::string color = {};  ///< hexadecimal
  bool isOriginalColor = false;
  bool hasBeenDeleted = false;
  friend bool operator==(const MiruneDailyMood&, const MiruneDailyMood&) = default;
};

/// All members are required.
void decode(foundation::JSONValue& value, MiruneDailyMood& mood);

/// The moods of the days, by day key ("2026/11/21"); each day carries its whole mood.
using MoodFile = std::map<std::string, MiruneDailyMood, std::less<>>;

/// The mood file, read afresh. One that is missing, or of which anything does not decode, is empty.
MoodFile readMoodFile(const uikit::Platform& platform);

}  // namespace mirune
