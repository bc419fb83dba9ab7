#pragma once

#include <string>
#include <tuple>
#include <vector>

#include "database/assignment.hpp"
#include "database/condition.hpp"
#include "database/error.hpp"

// The texts of queries, made from tables, conditions and assignments. Only Database uses them.

namespace database {

/// A cell as the member's type.
template <class Type>
Type decoded(const Value& value) {
  if (auto read = Storage<Type>::read(value)) return *std::move(read);
  throw Error(Fault::mismatch, "a row holds a value that is none of its column's type");
}

template <TableRecord Record>
Record decodedRow(const std::vector<Value>& cells) {
  Record record;
  auto cell = cells.begin();
  const auto take = [&]<auto member>(Column<member>) {
    record.*member = decoded<typename Column<member>::Type>(*cell++);
  };
  std::apply([&](auto... columns) { (take(columns), ...); }, Table<Record>::columns);
  return record;
}

template <TableRecord Record>
std::string creationText() {
  std::vector<Statement> columns;
  const auto add = [&]<auto member>(Column<member> added) {
    const std::string type(Storage<typename Column<member>::Type>::columnType);
    const char* rule = columns.empty() ? " PRIMARY KEY AUTOINCREMENT" : " NOT NULL";
    columns.push_back({.text = quoted(added.name) + " " + type + rule});
  };
  std::apply([&](auto... all) { (add(all), ...); }, Table<Record>::columns);
  return "CREATE TABLE " + quoted(Table<Record>::name) + " (" + joined(columns, ", ").text + ") STRICT";
}

template <auto... members>
Statement insertion(std::string_view table, const Assignment<members>&... assignments) {
  Statement result{"INSERT INTO " + quoted(table) + " ("};
  result.append(joined({Statement{quoted(column<members>.name)}...}, ", ")).append(") VALUES (");
  return result
      .append(joined({Statement{"?", {Storage<typename Column<members>::Type>::stored(assignments.value)}}...}, ", "))
      .append(")");
}

template <auto... members>
Statement settings(const Assignment<members>&... assignments) {
  return joined({Statement{quoted(column<members>.name) + " = ?",
                           {Storage<typename Column<members>::Type>::stored(assignments.value)}}...},
                ", ");
}

template <class Record>
Statement columnNames() {
  return std::apply([](auto... all) { return joined({Statement{quoted(all.name)}...}, ", "); }, Table<Record>::columns);
}

/// Nothing for a condition that is met by all.
template <class Record>
Statement whereClause(const Condition<Record>& condition) {
  if (condition.statement.text.empty()) return {};
  return Statement{" WHERE "}.append(condition.statement);
}

template <class Record>
Statement fromClause(const Condition<Record>& condition) {
  return Statement{" FROM " + quoted(Table<Record>::name)}.append(whereClause(condition));
}

}  // namespace database
