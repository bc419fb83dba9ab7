#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace foundation {

/// Full Unicode upper case, the same in every locale: "straße" is "STRASSE", "i" is "I" in Turkish too.
std::string uppercased(std::string_view text);

/// Full Unicode lower case, the same in every locale.
std::string lowercased(std::string_view text);

/// The text with its first "%lld" replaced by the number in ASCII digits; a text without one is returned as it is.
std::string filled(std::string_view format, long long number);

/// The text without what is neither letter, mark nor number (of any script) at its two ends; the inner text stays.
std::string_view trimmedToAlphanumerics(std::string_view text);

/// Whether the bytes are UTF-8, as all texts here have to be.
bool isUTF8(std::string_view bytes);

/// The number of characters that a reader sees: a letter with its accents is one.
std::size_t characterCount(std::string_view text);

/// The number that the text as a whole is in ASCII digits, with a sign or without. Nothing for all else, nor where it
/// is too large.
std::optional<std::int64_t> decimalInteger(std::string_view text);

/// The number that the text begins with in hexadecimal digits, after "0x" or "0X" if digits follow that. 0 where there
/// is no digit, the greatest number where it is too large.
std::uint64_t leadingHexadecimal(std::string_view text);

}  // namespace foundation
