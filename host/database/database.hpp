#pragma once

#include <chrono>
#include <concepts>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "database/queries.hpp"

namespace SQLite {
class Database;
class Transaction;
}  // namespace SQLite

namespace database {

/// Changes that happen together or, unless they are committed, not at all.
class Transaction {
 public:
  explicit Transaction(SQLite::Database& database);
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction();

  /// Once it returns, the changes outlast a power cut.
  void commit();

 private:
  std::unique_ptr<SQLite::Transaction> transaction_;
};

/// A database file with queries that are made of tables, columns and values, checked by the compiler:
///
///     const auto id = database.insert(set(column<&Book::title>, "Emma"), set(column<&Book::pages>, 474));
///     for (const Book& book : database.select(column<&Book::pages> > 100, ascending(column<&Book::title>))) …
///
/// Whatever fails throws an Error. Another process that uses the file is waited for, up to the limit.
class Database {
 public:
  /// Opens the file; an empty one is made if there is none.
  Database(const std::filesystem::path& file, std::chrono::milliseconds busyLimit);
  /// One that is gone with this value.
  static Database inMemory();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  Database(Database&& other) noexcept;
  Database& operator=(Database&& other) noexcept;
  ~Database();

  /// Waits for other writers and keeps them out until it ends, so that what it reads is still so when it writes.
  Transaction begin() { return Transaction(*database_); }

  template <TableRecord Record>
  void createTable() {
    run({creationText<Record>()});
  }

  /// Whether the record's table is there, exactly as createTable() makes it.
  template <TableRecord Record>
  bool hasTable() {
    return tableText(Table<Record>::name) == creationText<Record>();
  }

  bool hasNoTables();

  /// Adds a row with a value for every column but the key, and returns the key.
  template <auto first, auto... others>
    requires CompleteRow<typename Column<first>::Record, first, others...>
  std::int64_t insert(const Assignment<first>& value, const Assignment<others>&... values) {
    run(insertion(Table<typename Column<first>::Record>::name, value, values...));
    return lastKey();
  }

  template <TableRecord Record, std::same_as<Order<Record>>... Orders>
  std::vector<Record> select(const Condition<Record>& condition = {}, const Orders&... orders) {
    Statement query = Statement{"SELECT "}.append(columnNames<Record>()).append(fromClause(condition));
    if constexpr (sizeof...(orders) > 0) query.append(" ORDER BY ").append(joined({orders.statement...}, ", "));
    std::vector<Record> records;
    for (const auto& row : rows(query)) records.push_back(decodedRow<Record>(row));
    return records;
  }

  /// Changes the rows that meet the condition, and returns how many did.
  template <TableRecord Record, auto... members>
    requires(sizeof...(members) > 0 && (... && std::same_as<typename Column<members>::Record, Record>))
  std::int64_t update(const Condition<Record>& condition, const Assignment<members>&... values) {
    return run(Statement{"UPDATE " + quoted(Table<Record>::name) + " SET "}
                   .append(settings(values...))
                   .append(whereClause(condition)));
  }

  /// Removes the rows that meet the condition, and returns how many did.
  template <TableRecord Record>
  std::int64_t remove(const Condition<Record>& condition) {
    return run(Statement{"DELETE"}.append(fromClause(condition)));
  }

  template <TableRecord Record>
  std::int64_t count(const Condition<Record>& condition = {}) {
    return decoded<std::int64_t>(rows(Statement{"SELECT COUNT(*)"}.append(fromClause(condition))).at(0).at(0));
  }

  /// The greatest value of a column; nothing without rows.
  template <auto member>
  std::optional<typename Column<member>::Type> max(Column<member> of,
                                                   const Condition<typename Column<member>::Record>& condition = {}) {
    const auto found = rows(Statement{"SELECT MAX(" + quoted(of.name) + ")"}.append(fromClause(condition)));
    if (std::holds_alternative<std::monostate>(found.at(0).at(0))) return std::nullopt;
    return decoded<typename Column<member>::Type>(found.at(0).at(0));
  }

  /// The number that the program gave its schema; 0 in a new file.
  std::int64_t schemaVersion();
  void setSchemaVersion(int version);

  /// Reads through the whole file; throws what is damaged.
  void check();

 private:
  explicit Database(std::unique_ptr<SQLite::Database> database);
  /// How many rows it changed.
  std::int64_t run(const Statement& statement);
  std::vector<std::vector<Value>> rows(const Statement& statement);
  std::int64_t lastKey() const;
  /// The text that made a table; empty without such a table.
  std::string tableText(std::string_view name);

  std::unique_ptr<SQLite::Database> database_;
};

}  // namespace database
