#include "uikit/base_url.hpp"

#include <algorithm>
#include <array>

#include "foundation/strings.hpp"

namespace uikit {
namespace {

constexpr std::array<std::string_view, 6> refusedSchemes{"about", "blob", "data", "file", "javascript", "vbscript"};

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isLetterOrDigit(char c) {
  return isLetter(c) || (c >= '0' && c <= '9');
}

bool isScheme(std::string_view text) {
  const auto isAllowed = [](char c) { return isLetterOrDigit(c) || c == '+' || c == '-' || c == '.'; };
  return !text.empty() && isLetter(text.front()) && std::ranges::all_of(text, isAllowed) &&
         std::ranges::find(refusedSchemes, foundation::lowercased(text)) == refusedSchemes.end();
}

/// What stands in hosts and paths as it is; everything else is escaped with "%".
bool isAddressText(std::string_view text) {
  constexpr std::string_view marks = "-._~%!$&'()*+,;=:@/[]";
  return std::ranges::all_of(text, [&](char c) { return isLetterOrDigit(c) || marks.contains(c); });
}

}  // namespace

std::optional<std::string> baseURL(std::string_view text) {
  constexpr std::string_view separator = "://";
  const auto end = text.find(separator);
  if (end == std::string_view::npos || !isScheme(text.substr(0, end))) return std::nullopt;
  while (text.ends_with('/')) text.remove_suffix(1);
  const auto hostStart = end + separator.size();
  if (text.size() <= hostStart || text[hostStart] == '/' || !isAddressText(text.substr(hostStart))) return std::nullopt;
  return std::string(text);
}

}  // namespace uikit
