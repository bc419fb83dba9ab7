#include "database/statement.hpp"

namespace database {

Statement& Statement::append(std::string_view more) {
  text += more;
  return *this;
}

Statement& Statement::append(const Statement& more) {
  text += more.text;
  values.insert(values.end(), more.values.begin(), more.values.end());
  return *this;
}

std::string quoted(std::string_view name) {
  return '"' + std::string(name) + '"';
}

Statement joined(const std::vector<Statement>& pieces, std::string_view separator) {
  Statement result;
  for (const Statement& piece : pieces) {
    if (!result.text.empty()) result.append(separator);
    result.append(piece);
  }
  return result;
}

}  // namespace database
