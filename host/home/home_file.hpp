#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "database/database.hpp"
#include "home/placed_widget.hpp"

namespace home {

/// The version of the file's tables that this program writes.
inline constexpr int homeFileVersion = 1;

/// An opened file of placed widgets.
struct HomeFile {
  database::Database database = database::Database::inMemory();
  bool isKept = true;                      ///< whether changes outlast this process
  std::optional<std::string> notice = {};  ///< what went wrong, for the user: whole sentences
};

/// How long another process that uses the file is waited for.
inline constexpr std::chrono::milliseconds defaultPatience = std::chrono::seconds(2);

/// Opens the file, or makes it with the default layout if there is none; missing folders are made for the owner alone.
///
/// - A file of nothing counts as none.
/// - A damaged file is set aside as FILE.damaged-N and the default layout returns.
/// - A file that a newer version made, or that cannot be reached, is left as it is: the default layout is shown from
///   memory, and changes to it are gone with the process.
HomeFile openHomeFile(const std::filesystem::path& file, std::chrono::milliseconds patience = defaultPatience);

/// All rows, in no certain order.
std::vector<PlacedWidget> storedWidgets(database::Database& database);

/// Adds a row; the widget's id is not used. Returns the new one.
std::int64_t insertWidget(database::Database& database, const PlacedWidget& widget);

}  // namespace home
