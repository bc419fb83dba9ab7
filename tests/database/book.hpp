#pragma once

#include <cstdint>
#include <string>
#include <tuple>

#include "database/database.hpp"

/// A record with one column of each type, and a member that no column has.
struct Book {
  std::int64_t id = 0;
  std::string title = {};
  int pages = 0;
  double weight = 0;
  std::string note = {};
  friend bool operator==(const Book&, const Book&) = default;
};

template <>
struct database::Table<Book> {
  static constexpr std::string_view name = "books";
  static constexpr std::tuple columns{Column<&Book::id>{"id"}, Column<&Book::title>{"title"},
                                      Column<&Book::pages>{"pages"}, Column<&Book::weight>{"order"}};
};

/// The same table as a program sees it that knows of thicker books.
struct ThickBook {
  std::int64_t id = 0;
  std::int64_t pages = 0;
};

template <>
struct database::Table<ThickBook> {
  static constexpr std::string_view name = "books";
  static constexpr std::tuple columns{Column<&ThickBook::id>{"id"}, Column<&ThickBook::pages>{"pages"}};
};

struct Shelf {
  std::int64_t id = 0;
  std::string room = {};
};

template <>
struct database::Table<Shelf> {
  static constexpr std::string_view name = "shelves";
  static constexpr std::tuple columns{Column<&Shelf::id>{"id"}, Column<&Shelf::room>{"room"}};
};

inline constexpr auto id = database::column<&Book::id>;
inline constexpr auto title = database::column<&Book::title>;
inline constexpr auto pages = database::column<&Book::pages>;
inline constexpr auto weight = database::column<&Book::weight>;
inline constexpr auto room = database::column<&Shelf::room>;
