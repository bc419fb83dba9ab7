#include "host/server/http_message.hpp"

#include <charconv>

namespace host {

namespace {

/// A wrong escape stays as it is.
std::string decoded(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    unsigned byte = 0;
    if (text[at] == '+') {
      result += ' ';
    } else if (text[at] == '%' && at + 2 < text.size() &&
               std::from_chars(text.data() + at + 1, text.data() + at + 3, byte, 16).ptr == text.data() + at + 3) {
      result += static_cast<char>(byte);
      at += 2;
    } else {
      result += text[at];
    }
  }
  return result;
}

}  // namespace

std::pair<std::string, std::map<std::string, std::string>> splitTarget(const std::string& target) {
  const std::size_t mark = target.find('?');
  std::map<std::string, std::string> query;
  std::string_view rest = mark == std::string::npos ? std::string_view() : std::string_view(target).substr(mark + 1);
  while (!rest.empty()) {
    const std::string_view pair = rest.substr(0, rest.find('&'));
    rest.remove_prefix(std::min(rest.size(), pair.size() + 1));
    const std::size_t equals = pair.find('=');
    query[decoded(pair.substr(0, equals))] =
        equals == std::string_view::npos ? std::string() : decoded(pair.substr(equals + 1));
  }
  return {target.substr(0, mark), std::move(query)};
}

}  // namespace host
