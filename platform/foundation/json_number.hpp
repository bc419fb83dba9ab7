#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace foundation {

/// Whether a token is a JSON number, of any size: "-0", "1e999".
bool isJSONNumber(std::string_view token);

/// The value of a number that is whole and fits: "1", "1.0", "10e-1". Fractions that vanish in double precision count
/// as none.
std::optional<std::int64_t> wholeNumber(std::string_view token);

}  // namespace foundation
