#include "rendering/drawable_text.hpp"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <cstdint>

namespace rendering {
namespace {

constexpr std::size_t mostCharacters = 4096;
constexpr UChar32 replacement = 0xFFFD;

bool isLineBreak(UChar32 character) {
  constexpr UChar32 nextLine = 0x85;
  constexpr UChar32 lineSeparator = 0x2028;
  constexpr UChar32 paragraphSeparator = 0x2029;
  return (character >= '\n' && character <= '\r') || character == nextLine || character == lineSeparator ||
         character == paragraphSeparator;
}

void append(std::string& text, UChar32 character) {
  std::uint8_t bytes[U8_MAX_LENGTH];
  std::int32_t length = 0;
  U8_APPEND_UNSAFE(bytes, length, character);
  text.append(bytes, bytes + length);
}

}  // namespace

std::string drawableText(const std::string& content) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(content.data());
  const auto size = static_cast<std::int64_t>(content.size());
  std::string text;
  text.reserve(content.size());
  std::size_t count = 0;
  for (std::int64_t position = 0; position < size; ++count) {
    if (count == mostCharacters) return text + "…";
    UChar32 character = 0;
    U8_NEXT_OR_FFFD(bytes, position, size, character);
    if (character == '\r' && position < size && bytes[position] == '\n') ++position;
    if (isLineBreak(character)) {
      text += '\n';
    } else if (character == '\t') {
      text += ' ';
    } else if (character == 0) {
      append(text, replacement);
    } else if (u_charType(character) != U_CONTROL_CHAR) {
      append(text, character);
    }
  }
  return text;
}

}  // namespace rendering
