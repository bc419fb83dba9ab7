#pragma once

#include <cstdint>
#include <expected>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/date.hpp"

// Decoding of the planner's files. A record says once how its members are called:
//
//   void decode(JSONValue value, Habit& habit) {
//     decodeObject(value, required("id", habit.id), required("done", habit.done), ifPresent("note", habit.note));
//   }
//   std::expected<std::map<std::string, std::vector<Habit>>, DecodingError> habits = decodeJSON<...>(bytes);
//
// decode() is found by argument-dependent lookup; std::string, bool, std::int64_t, Date (ISO 8601), std::vector and
// std::map from text come with it. One failing member fails the whole text, as on the platform:
// - the text is UTF-8, a leading byte-order mark is skipped, anything but blanks after the value is refused;
// - members that no record names are ignored, but walked: bad JSON anywhere refuses the text;
// - of equal keys in an object the first wins (of a map's equal keys every value must still decode);
// - integers take 1.0 and 1e0, not 1.5; a required null is refused, an absent or null ifPresent member is nothing;
// - at most 512 arrays and objects nest.

namespace foundation {

/// Why and where a text was refused.
struct DecodingError {
  std::string path = {};    ///< "2026/11/21[3].calid"; empty for the text as a whole
  std::string reason = {};  ///< "missing"

  /// "2026/11/21[3].calid: missing".
  std::string message() const { return path.empty() ? reason : path + ": " + reason; }
};

// The rest of the declarations belong to the implementation (see above for what must be there).

}  // namespace foundation
