#pragma once

#include <string>
#include <string_view>

namespace foundation {

/// Full Unicode upper case, the same in every locale: "straße" is "STRASSE", "i" is "I" in Turkish too.
std::string uppercased(std::string_view text);

/// Full Unicode lower case, the same in every locale.
std::string lowercased(std::string_view text);

/// The text with its first "%lld" replaced by the number in ASCII digits; a text without one is returned as it is.
std::string filled(std::string_view format, long long number);

}  // namespace foundation
