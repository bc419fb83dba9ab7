#include "foundation/strings.hpp"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <memory>
#include <optional>

namespace foundation {
namespace {

bool isASCII(std::string_view text) {
  return std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

icu::UnicodeString unicode(std::string_view text) {
  return icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
}

std::string utf8(const icu::UnicodeString& text) {
  std::string bytes;
  text.toUTF8String(bytes);
  return bytes;
}

/// The text with its ASCII letters from `first` to `last` moved by so many places.
std::string shifted(std::string_view text, char first, char last, int places) {
  std::string result(text);
  for (char& byte : result) {
    if (byte >= first && byte <= last) byte = static_cast<char>(byte + places);
  }
  return result;
}

bool isAlphanumeric(UChar32 character) {
  return (U_GET_GC_MASK(character) & (U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK)) != 0;
}

}  // namespace

std::string uppercased(std::string_view text) {
  if (isASCII(text)) return shifted(text, 'a', 'z', 'A' - 'a');
  return utf8(unicode(text).toUpper(icu::Locale::getRoot()));
}

std::string lowercased(std::string_view text) {
  if (isASCII(text)) return shifted(text, 'A', 'Z', 'a' - 'A');
  return utf8(unicode(text).toLower(icu::Locale::getRoot()));
}

std::string filled(std::string_view format, long long number) {
  constexpr std::string_view placeholder = "%lld";
  std::string result(format);
  if (const std::size_t at = result.find(placeholder); at != std::string::npos) {
    result.replace(at, placeholder.size(), std::to_string(number));
  }
  return result;
}

std::string_view trimmedToAlphanumerics(std::string_view text) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  const auto length = static_cast<std::int32_t>(text.size());
  std::int32_t begin = 0;
  std::int32_t end = length;
  UChar32 character = 0;
  for (std::int32_t next = 0; begin < length; begin = next) {
    U8_NEXT(bytes, next, length, character);
    if (isAlphanumeric(character)) break;
  }
  for (std::int32_t previous = length; end > begin; end = previous) {
    U8_PREV(bytes, 0, previous, character);
    if (isAlphanumeric(character)) break;
  }
  return text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
}

bool isUTF8(std::string_view bytes) {
  const auto* start = reinterpret_cast<const std::uint8_t*>(bytes.data());
  const auto size = static_cast<std::int64_t>(bytes.size());
  for (std::int64_t position = 0; position < size;) {
    UChar32 character = 0;
    U8_NEXT(start, position, size, character);
    if (character < 0) return false;
  }
  return true;
}

std::size_t characterCount(std::string_view text) {
  if (isASCII(text)) return text.size();
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::BreakIterator> characters(
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  if (U_FAILURE(status)) return text.size();
  const icu::UnicodeString string = unicode(text);
  characters->setText(string);
  std::size_t count = 0;
  while (characters->next() != icu::BreakIterator::DONE) ++count;
  return count;
}

std::optional<std::int64_t> decimalInteger(std::string_view text) {
  // std::from_chars takes a minus but no plus.
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return std::nullopt;
  }
  std::int64_t value = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && rest == end ? std::optional(value) : std::nullopt;
}

std::uint64_t leadingHexadecimal(std::string_view text) {
  const auto read = [](std::string_view digits) -> std::optional<std::uint64_t> {
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (error == std::errc::result_out_of_range) return std::numeric_limits<std::uint64_t>::max();
    return error == std::errc() ? std::optional(value) : std::nullopt;
  };
  if (text.starts_with("0x") || text.starts_with("0X")) {
    if (const auto value = read(text.substr(2))) return *value;
  }
  return read(text).value_or(0);
}

}  // namespace foundation
