#include "home/home_file.hpp"

#include <sys/stat.h>

#include <cerrno>
#include <stdexcept>
#include <system_error>

#include "home/default_layout.hpp"
#include "home/folder_lock.hpp"
#include "home/home_table.hpp"
#include "home/set_aside.hpp"

namespace home {

namespace {

using database::Database;
using database::Error;
using database::Fault;
using database::set;

/// Makes a folder and those above it that are missing, for the owner alone.
void makeFolder(const std::filesystem::path& folder) {
  if (folder.empty() || std::filesystem::is_directory(folder)) return;
  if (folder != folder.parent_path()) makeFolder(folder.parent_path());
  if (::mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST) return;
  throw std::system_error(errno, std::generic_category(), "cannot make the folder " + folder.string());
}

/// Opening a pipe or a device could wait for ever.
void requireFile(const std::filesystem::path& file) {
  const auto status = std::filesystem::status(file);
  if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
    throw std::runtime_error(file.string() + " is not a file");
  }
}

void fill(Database& database) {
  auto transaction = database.begin();
  database.createTable<PlacedWidget>();
  for (const PlacedWidget& widget : defaultLayout()) insertWidget(database, widget);
  database.setSchemaVersion(homeFileVersion);
  transaction.commit();
}

/// Opens the file, and fills it if it is new. Throws an Error if it is not sound, std::runtime_error if it is newer.
Database establish(const std::filesystem::path& file, std::chrono::milliseconds patience) {
  Database database(file, patience);
  database.check();
  const auto version = database.schemaVersion();
  if (version > homeFileVersion) {
    throw std::runtime_error(file.string() + " was made by a newer version of this program");
  }
  if (version == 0 && database.hasNoTables()) fill(database);
  if (!database.hasTable<PlacedWidget>()) throw Error(Fault::mismatch, "it holds no placed widgets");
  storedWidgets(database);  // every row can be read
  return database;
}

HomeFile openSoundly(const std::filesystem::path& file, std::chrono::milliseconds patience) {
  try {
    return {.database = establish(file, patience)};
  } catch (const Error& error) {
    if (error.fault() == Fault::failed) throw;
    const auto kept = setAside(file);
    return {.database = establish(file, patience),
            .notice = "The stored home screen was damaged (" + std::string(error.what()) +
                      "), so the default one is shown. The damaged file was kept as " + kept.string() + "."};
  }
}

}  // namespace

HomeFile openHomeFile(const std::filesystem::path& file, std::chrono::milliseconds patience) {
  try {
    const auto whole = std::filesystem::absolute(file);
    makeFolder(whole.parent_path());
    requireFile(whole);
    const FolderLock lock(whole.parent_path(), patience);
    return openSoundly(whole, patience);
  } catch (const std::exception& error) {
    HomeFile result = {.isKept = false,
                       .notice = "The home screen cannot be kept in " + file.string() + " (" + error.what() +
                                 "), so the default one is shown and changes to it will be lost at the end."};
    fill(result.database);
    return result;
  }
}

std::vector<PlacedWidget> storedWidgets(Database& database) {
  return database.select<PlacedWidget>();
}

std::int64_t insertWidget(Database& database, const PlacedWidget& widget) {
  return database.insert(set(columns::kind, widget.kind), set(columns::family, widget.family),
                         set(columns::place, widget.place), set(columns::position, widget.position));
}

}  // namespace home
