#pragma once

#include <cstdint>
#include <expected>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/date.hpp"
#include "foundation/decoding_error.hpp"
#include "foundation/json_members.hpp"
#include "foundation/json_value.hpp"

// Decoding of the planner's files. A record says once how its members are called:
//
//   void decode(JSONValue& value, Habit& habit) {
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

void decode(JSONValue& value, std::string& text);
void decode(JSONValue& value, bool& boolean);
void decode(JSONValue& value, std::int64_t& integer);
void decode(JSONValue& value, Date& date);

template <class Element>
void decode(JSONValue& value, std::vector<Element>& elements) {
  constexpr std::size_t usualSize = 8;  // of the lists of a day: few grow further
  elements.clear();
  value.forEachElement([&](JSONValue& element) {
    if (elements.empty()) elements.reserve(usualSize);
    decode(element, elements.emplace_back());
  });
}

template <class Mapped, class Compare>
void decode(JSONValue& value, std::map<std::string, Mapped, Compare>& members) {
  members.clear();
  value.forEachMember([&](std::string_view key, JSONValue& member) {
    Mapped mapped = {};
    decode(member, mapped);
    members.try_emplace(std::string(key), std::move(mapped));
  });
}

/// Parses a text and hands its value to `body`, which must read it. Throws DecodingError. The text is changed while it
/// is read: a long one is better moved here than copied.
void readJSON(std::string text, const std::function<void(JSONValue&)>& body);

/// Decodes a whole text into a value, or says where it does not fit; the value is then anything.
template <class T>
std::expected<void, DecodingError> decodeJSON(std::string text, T& result) {
  try {
    readJSON(std::move(text), [&](JSONValue& value) { decode(value, result); });
  } catch (DecodingError& error) {
    return std::unexpected(std::move(error));
  }
  return {};
}

/// Decodes a whole text, or says where it does not fit.
template <class T>
std::expected<T, DecodingError> decodeJSON(std::string text) {
  T result = {};
  if (auto decoded = decodeJSON(std::move(text), result); !decoded) return std::unexpected(std::move(decoded.error()));
  return result;
}

}  // namespace foundation
