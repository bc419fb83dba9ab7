#include "foundation/strings.hpp"

#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <algorithm>

namespace foundation {
namespace {

bool isASCII(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
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

}  // namespace foundation
