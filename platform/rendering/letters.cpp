#include "rendering/letters.hpp"

#include <unicode/uchar.h>
#include <unicode/uscript.h>
#include <unicode/utf8.h>

#include <cstdint>

namespace rendering {
namespace {

constexpr char32_t textStyle = 0xFE0E;
constexpr char32_t emojiStyle = 0xFE0F;

UScriptCode scriptOf(char32_t character) {
  UErrorCode status = U_ZERO_ERROR;
  return uscript_getScript(static_cast<UChar32>(character), &status);
}

}  // namespace

char32_t nextCharacter(std::string_view text, std::size_t& position) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  UChar32 character = 0;
  U8_NEXT_UNSAFE(bytes, position, character);
  return static_cast<char32_t>(character);
}

bool isBlank(char32_t character) {
  return u_isUWhiteSpace(static_cast<UChar32>(character)) != 0;
}

bool isInvisible(char32_t character) {
  return u_hasBinaryProperty(static_cast<UChar32>(character), UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0;
}

bool joinsLetters(char32_t character) {
  switch (scriptOf(character)) {
    case USCRIPT_ARABIC:
    case USCRIPT_SYRIAC:
    case USCRIPT_NKO:
    case USCRIPT_MONGOLIAN:
    case USCRIPT_DEVANAGARI:
    case USCRIPT_BENGALI:
    case USCRIPT_GURMUKHI:
      return true;
    default:
      return false;
  }
}

bool isKorean(char32_t character) {
  return scriptOf(character) == USCRIPT_HANGUL;
}

bool isEmoji(std::string_view character) {
  if (character.empty()) return false;
  std::size_t position = 0;
  const auto first = static_cast<UChar32>(nextCharacter(character, position));
  bool isPicture = u_hasBinaryProperty(first, UCHAR_EMOJI_PRESENTATION) != 0;
  while (position < character.size()) {
    const char32_t next = nextCharacter(character, position);
    if (next == textStyle) return false;
    isPicture = isPicture || (next == emojiStyle && u_hasBinaryProperty(first, UCHAR_EMOJI) != 0);
  }
  return isPicture;
}

std::string_view withoutBlanksAtEnd(std::string_view text) {
  std::size_t end = 0;
  for (std::size_t position = 0; position < text.size();) {
    if (!isBlank(nextCharacter(text, position))) end = position;
  }
  return text.substr(0, end);
}

}  // namespace rendering
