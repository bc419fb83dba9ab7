#include "host/commands/text.hpp"

#include <tuple>

#include "foundation/json.hpp"

namespace host {

bool isUTF8(const std::string& text) {
  try {
    std::ignore = foundation::JSON(text).dump();
    return true;
  } catch (const foundation::JSON::exception&) {
    return false;
  }
}

std::string printable(std::string_view text) {
  const auto isControl = [](char byte) { return ('\0' <= byte && byte < ' ') || byte == '\x7f'; };
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    // U+0080 to U+009F are two bytes of UTF-8.
    const bool isLateControl = text[at] == '\xC2' && at + 1 < text.size() && (text[at + 1] & 0xE0) == 0x80;
    if (isLateControl) ++at;
    result += isLateControl || isControl(text[at]) ? ' ' : text[at];
  }
  return result;
}

}  // namespace host
