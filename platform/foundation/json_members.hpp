#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "foundation/json_value.hpp"

namespace foundation {

/// A member that a record expects, and the field that takes it.
struct JSONMember {
  std::string_view key;
  bool isRequired;
  void* field;
  void (*read)(JSONValue& value, void* field);
};

/// A member that must be there, with a value that fits.
template <class T>
JSONMember required(std::string_view key, T& field) {
  return {key, true, &field, [](JSONValue& value, void* into) { decode(value, *static_cast<T*>(into)); }};
}

/// A member that may be absent or null; anything else must fit.
template <class T>
JSONMember ifPresent(std::string_view key, std::optional<T>& field) {
  return {key, false, &field, [](JSONValue& value, void* into) {
            if (!value.isNull()) decode(value, static_cast<std::optional<T>*>(into)->emplace());
          }};
}

/// Reads an object whose members are called so; all others are walked and ignored. At most 64 members.
void decodeMembers(JSONValue& value, std::span<const JSONMember> members);

/// The same with the members one by one.
template <class... Members>
void decodeObject(JSONValue& value, const Members&... members) {
  static_assert(sizeof...(Members) <= 64);
  decodeMembers(value, std::array<JSONMember, sizeof...(Members)>{members...});
}

}  // namespace foundation
