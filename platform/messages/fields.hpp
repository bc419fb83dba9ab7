#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "foundation/date.hpp"
#include "foundation/json.hpp"

// Fields of messages, read strictly: a field that is missing or of another type throws foundation::JSON::exception.

namespace messages {

/// An enum's texts on the wire.
template <class Enum, std::size_t count>
using Texts = std::array<std::pair<std::string_view, Enum>, count>;

[[noreturn]] void failField(const foundation::JSON& json, const char* name, std::string_view expected);

template <class T>
bool hasType(const foundation::JSON& value) {
  if constexpr (std::is_same_v<T, std::string>) return value.is_string();
  if constexpr (std::is_same_v<T, double>) return value.is_number();
  if constexpr (std::is_same_v<T, std::vector<std::string>>) {
    if (!value.is_array()) return false;
    for (const auto& element : value) {
      if (!element.is_string()) return false;
    }
    return true;
  }
  if constexpr (std::is_same_v<T, std::vector<foundation::JSON>>) return value.is_array();
  return true;
}

template <class T>
T field(const foundation::JSON& json, const char* name) {
  const foundation::JSON& value = json.at(name);
  if (!hasType<T>(value)) failField(value, name, "of another type");
  return value.get<T>();
}

/// A whole number that an int can hold.
int integerField(const foundation::JSON& json, const char* name);

/// A moment as formatMoment prints it.
foundation::Date momentField(const foundation::JSON& json, const char* name);

template <class Enum, std::size_t count>
Enum enumField(const foundation::JSON& json, const char* name, const Texts<Enum, count>& texts) {
  const auto text = field<std::string>(json, name);
  for (const auto& [known, value] : texts) {
    if (known == text) return value;
  }
  failField(json.at(name), name, "none of the known ones");
}

template <class Enum, std::size_t count>
std::string_view textOf(Enum value, const Texts<Enum, count>& texts) {
  for (const auto& [text, known] : texts) {
    if (known == value) return text;
  }
  __builtin_unreachable();
}

}  // namespace messages
