#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "home/placed_widget.hpp"

/// "home: 3 1 2 | lock: 4", and which positions are not as they should be.
inline std::string order(const std::vector<home::PlacedWidget>& widgets) {
  std::string result;
  for (const auto place : {home::Place::home, home::Place::lock}) {
    result += std::string(result.empty() ? "" : " | ") + std::string(home::nameOf(place)) + ":";
    int position = 0;
    for (const auto& widget : widgets) {
      if (widget.place != place) continue;
      result += " " + std::to_string(widget.id);
      if (widget.position != position++) result += "@" + std::to_string(widget.position);
    }
  }
  return result;
}

/// What stands where: "home Mirune_Widgets2 systemSmall", a line each.
inline std::string contents(const std::vector<home::PlacedWidget>& widgets) {
  std::string result;
  for (const auto& widget : widgets) {
    result += std::string(home::nameOf(widget.place)) + " " + widget.kind + " " + widget.family + "\n";
  }
  return result;
}

/// Does to a database file what this program never does.
inline void execute(const std::filesystem::path& file, const std::string& statements) {
  sqlite3* opened = nullptr;
  const int code = sqlite3_open(file.c_str(), &opened);
  const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
  if (code != SQLITE_OK || sqlite3_exec(opened, statements.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw std::runtime_error(statements + ": " + sqlite3_errmsg(opened));
  }
}
