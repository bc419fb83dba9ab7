#pragma once

#include <tuple>
#include <type_traits>
#include <utility>

#include "database/table.hpp"

namespace database {

/// A value for a column, in an insert or an update.
template <auto member>
struct Assignment {
  typename Column<member>::Type value = {};
};

/// set(column<&Book::title>, "Emma")
template <auto member, ValueFor<typename Column<member>::Type> Given>
Assignment<member> set(Column<member>, Given&& value) {
  return {typename Column<member>::Type{std::forward<Given>(value)}};
}

/// Whether a column has a value among those of some members.
template <class Wanted, auto... members>
constexpr bool isAssigned = (0 + ... + int{std::is_same_v<Wanted, Column<members>>}) == 1;

template <auto... members, class Key, class... Others>
consteval bool assignsAllButKey(std::type_identity<std::tuple<Key, Others...>>) {
  return sizeof...(members) == sizeof...(Others) && (... && isAssigned<Others, members...>);
}

/// What a new row needs: a value for every column but the key, each once.
template <class Record, auto... members>
concept CompleteRow = assignsAllButKey<members...>(std::type_identity<Columns<Record>>());

}  // namespace database
