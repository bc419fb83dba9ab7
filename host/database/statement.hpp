#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "database/value.hpp"

namespace database {

/// A piece of a query: its text, and the values that its question marks stand for. Values are never part of the text.
struct Statement {
  std::string text = {};
  std::vector<Value> values = {};

  Statement& append(std::string_view more);
  Statement& append(const Statement& more);
};

/// "title"
std::string quoted(std::string_view name);

/// Pieces one after another, with a text between two of them.
Statement joined(const std::vector<Statement>& pieces, std::string_view separator);

}  // namespace database
