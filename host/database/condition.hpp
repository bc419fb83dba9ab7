#pragma once

#include <string_view>
#include <utility>

#include "database/statement.hpp"
#include "database/table.hpp"

namespace database {

/// Which rows of a record's table are meant; all of them without any comparison.
///
///     column<&Book::pages> > 100 && column<&Book::title> != "Emma"
template <class Record>
struct Condition {
  Statement statement = {};
};

/// What the rows are sorted by.
template <class Record>
struct Order {
  Statement statement = {};
};

/// A comparison of a column with a value.
template <auto member, class Given>
Condition<typename Column<member>::Record> comparison(Column<member> left, std::string_view sign, Given&& right) {
  using Type = typename Column<member>::Type;
  return {{.text = quoted(left.name) + std::string(sign) + "?",
           .values = {Storage<Type>::stored(Type{std::forward<Given>(right)})}}};
}

template <auto member, ValueFor<typename Column<member>::Type> Given>
auto operator==(Column<member> left, Given&& right) {
  return comparison(left, " = ", std::forward<Given>(right));
}

template <auto member, ValueFor<typename Column<member>::Type> Given>
auto operator!=(Column<member> left, Given&& right) {
  return comparison(left, " <> ", std::forward<Given>(right));
}

template <auto member, ValueFor<typename Column<member>::Type> Given>
auto operator<(Column<member> left, Given&& right) {
  return comparison(left, " < ", std::forward<Given>(right));
}

template <auto member, ValueFor<typename Column<member>::Type> Given>
auto operator<=(Column<member> left, Given&& right) {
  return comparison(left, " <= ", std::forward<Given>(right));
}

template <auto member, ValueFor<typename Column<member>::Type> Given>
auto operator>(Column<member> left, Given&& right) {
  return comparison(left, " > ", std::forward<Given>(right));
}

template <auto member, ValueFor<typename Column<member>::Type> Given>
auto operator>=(Column<member> left, Given&& right) {
  return comparison(left, " >= ", std::forward<Given>(right));
}

template <class Record>
Condition<Record> operator&&(const Condition<Record>& left, const Condition<Record>& right) {
  return {Statement{"("}.append(left.statement).append(" AND ").append(right.statement).append(")")};
}

template <class Record>
Condition<Record> operator||(const Condition<Record>& left, const Condition<Record>& right) {
  return {Statement{"("}.append(left.statement).append(" OR ").append(right.statement).append(")")};
}

template <auto member>
Order<typename Column<member>::Record> ascending(Column<member> by) {
  return {{.text = quoted(by.name)}};
}

template <auto member>
Order<typename Column<member>::Record> descending(Column<member> by) {
  return {{.text = quoted(by.name) + " DESC"}};
}

}  // namespace database
