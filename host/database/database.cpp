#include "database/database.hpp"

#include <SQLiteCpp/SQLiteCpp.h>

#include <type_traits>

namespace database {

namespace {

/// Runs what uses SQLite; its exceptions become an Error.
template <class Action>
auto translated(const Action& action) {
  try {
    return action();
  } catch (const SQLite::Exception& error) {
    throw Error(faultOfResult(error.getErrorCode()), error.what());
  }
}

void bind(SQLite::Statement& prepared, int index, const Value& value) {
  std::visit(
      [&](const auto& held) {
        if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::monostate>) {
          prepared.bind(index);
        } else {
          prepared.bind(index, held);
        }
      },
      value);
}

SQLite::Statement prepared(SQLite::Database& database, const Statement& statement) {
  SQLite::Statement result(database, statement.text);
  int index = 0;
  for (const Value& value : statement.values) bind(result, ++index, value);
  return result;
}

Value valueOf(const SQLite::Column& cell) {
  if (cell.isInteger()) return cell.getInt64();
  if (cell.isFloat()) return cell.getDouble();
  if (cell.isNull()) return std::monostate();
  return cell.getString();
}

}  // namespace

Transaction::Transaction(SQLite::Database& database)
    : transaction_(translated(
          [&] { return std::make_unique<SQLite::Transaction>(database, SQLite::TransactionBehavior::IMMEDIATE); })) {}

Transaction::~Transaction() = default;

void Transaction::commit() {
  translated([&] { transaction_->commit(); });
}

Database::Database(const std::filesystem::path& file, std::chrono::milliseconds busyLimit)
    : Database(translated([&] {
        return std::make_unique<SQLite::Database>(file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE,
                                                  static_cast<int>(busyLimit.count()));
      })) {
  // A rollback journal, synced with its folder on either side of a commit: what is committed outlasts a power cut.
  rows({"PRAGMA journal_mode = DELETE"});
  rows({"PRAGMA synchronous = EXTRA"});
  // What the file holds may come from anywhere.
  rows({"PRAGMA trusted_schema = OFF"});
  rows({"PRAGMA cell_size_check = ON"});
}

Database::Database(std::unique_ptr<SQLite::Database> database) : database_(std::move(database)) {}

Database Database::inMemory() {
  return Database(translated(
      [] { return std::make_unique<SQLite::Database>(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE); }));
}

Database::Database(Database&& other) noexcept = default;
Database& Database::operator=(Database&& other) noexcept = default;
Database::~Database() = default;

std::int64_t Database::run(const Statement& statement) {
  return translated([&] { return std::int64_t{prepared(*database_, statement).exec()}; });
}

std::vector<std::vector<Value>> Database::rows(const Statement& statement) {
  return translated([&] {
    std::vector<std::vector<Value>> result;
    SQLite::Statement query = prepared(*database_, statement);
    while (query.executeStep()) {
      auto& row = result.emplace_back();
      for (int i = 0; i < query.getColumnCount(); ++i) row.push_back(valueOf(query.getColumn(i)));
    }
    return result;
  });
}

std::int64_t Database::lastKey() const {
  return database_->getLastInsertRowid();
}

bool Database::hasNoTables() {
  return rows({"SELECT name FROM sqlite_schema LIMIT 1"}).empty();
}

std::string Database::tableText(std::string_view name) {
  const auto found =
      rows({"SELECT sql FROM sqlite_schema WHERE type = 'table' AND name = ?", {Value(std::string(name))}});
  return found.empty() ? std::string() : decoded<std::string>(found[0].at(0));
}

std::int64_t Database::schemaVersion() {
  return decoded<std::int64_t>(rows({"PRAGMA user_version"}).at(0).at(0));
}

void Database::setSchemaVersion(int version) {
  run({"PRAGMA user_version = " + std::to_string(version)});  // a pragma takes no question marks
}

void Database::check() {
  const auto found = rows({"PRAGMA quick_check(1)"});
  const auto* verdict = found.empty() ? nullptr : std::get_if<std::string>(&found[0].at(0));
  if (verdict == nullptr || *verdict != "ok") {
    throw Error(Fault::damaged, verdict != nullptr ? *verdict : "its check gave no answer");
  }
}

}  // namespace database
