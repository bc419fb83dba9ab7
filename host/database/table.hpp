#pragma once

#include <cstdint>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "database/value.hpp"

namespace database {

/// A column: the member of a record that it fills, and what it is called in the file.
template <auto memberOfRecord>
struct Column;

template <class OwnRecord, class OwnType, OwnType OwnRecord::* ownMember>
struct Column<ownMember> {
  using Record = OwnRecord;
  using Type = OwnType;
  static constexpr auto member = ownMember;

  std::string_view name = {};
};

/// Maps a record to a table; specialise it with a name and the columns. The first column is the key: the database gives
/// a new row a number there that no row has had before.
///
///     template <>
///     struct database::Table<Book> {
///       static constexpr std::string_view name = "books";
///       static constexpr std::tuple columns{Column<&Book::id>{"id"}, Column<&Book::title>{"title"}};
///     };
template <class Record>
struct Table;

template <class Record>
using Columns = std::remove_const_t<decltype(Table<Record>::columns)>;

/// Whether the columns of a table hold a column exactly once.
template <class Wanted, class... All>
consteval bool holdsOnce(std::type_identity<std::tuple<All...>>) {
  return (0 + ... + int{std::is_same_v<Wanted, All>}) == 1;
}

template <auto member>
concept TableMember = holdsOnce<Column<member>>(std::type_identity<Columns<typename Column<member>::Record>>());

/// The column of a member, to be used in queries: column<&Book::title>. A member that its table does not list does not
/// compile.
template <auto member>
  requires TableMember<member>
inline constexpr auto column = std::get<Column<member>>(Table<typename Column<member>::Record>::columns);

/// A record whose table has a key.
template <class Record>
concept TableRecord = std::is_same_v<typename std::tuple_element_t<0, Columns<Record>>::Type, std::int64_t>;

}  // namespace database
