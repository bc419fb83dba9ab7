#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>

#include "foundation/json_value.hpp"

namespace foundation {

/// A member that must be there, with a value that fits.
template <class T>
struct RequiredMember {
  static constexpr bool isRequired = true;
  std::string_view key;
  T& field;

  void read(JSONValue value) const { decode(value, field); }
};

/// A member that may be absent or null; anything else must fit.
template <class T>
struct OptionalMember {
  static constexpr bool isRequired = false;
  std::string_view key;
  std::optional<T>& field;

  void read(JSONValue value) const {
    if (value.isNull()) return;
    decode(value, field.emplace());
  }
};

template <class T>
RequiredMember<T> required(std::string_view key, T& field) {
  return {key, field};
}

template <class T>
OptionalMember<T> ifPresent(std::string_view key, std::optional<T>& field) {
  return {key, field};
}

/// Reads an object whose members are called so; all others are walked and ignored.
template <class... Members>
void decodeObject(JSONValue value, const Members&... members) {
  constexpr std::size_t count = sizeof...(Members);
  const std::tuple<const Members&...> all(members...);
  std::array<bool, count> seen = {};
  std::size_t expected = 0;  // files mostly keep the order of the record, so the search starts behind the last find

  const auto withMember = [&]<std::size_t... places>(std::index_sequence<places...>, std::string_view key,
                                                     std::size_t first, std::size_t end, JSONValue member) {
    const auto take = [&]<std::size_t place>(std::integral_constant<std::size_t, place>) {
      if (place < first || place >= end || std::get<place>(all).key != key) return false;
      if (seen[place]) {
        member.skip();
      } else {
        seen[place] = true;
        std::get<place>(all).read(member);
      }
      expected = place + 1;
      return true;
    };
    return (take(std::integral_constant<std::size_t, places>()) || ...);
  };

  const auto places = std::index_sequence_for<Members...>();
  value.forEachMember([&](std::string_view key, JSONValue member) {
    const std::size_t start = expected;
    if (!withMember(places, key, start, count, member) && !withMember(places, key, 0, start, member)) member.skip();
  });

  const std::array<bool, count> needed = {Members::isRequired...};
  const std::array<std::string_view, count> keys = {members.key...};
  for (std::size_t place = 0; place < count; ++place) {
    if (needed[place] && !seen[place]) throw DecodingError{.path = std::string(keys[place]), .reason = "missing"};
  }
}

}  // namespace foundation
