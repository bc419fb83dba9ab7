#include "foundation/json_number.hpp"

#include <charconv>
#include <cmath>
#include <system_error>

namespace foundation {
namespace {

bool isDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

bool takeOne(std::string_view& text, std::string_view choices) {
  if (text.empty() || !choices.contains(text.front())) return false;
  text.remove_prefix(1);
  return true;
}

bool takeDigits(std::string_view& text) {
  if (text.empty() || !isDigit(text.front())) return false;
  while (!text.empty() && isDigit(text.front())) text.remove_prefix(1);
  return true;
}

template <class Number>
std::optional<Number> parsed(std::string_view token) {
  Number number = {};
  const auto [end, error] = std::from_chars(token.data(), token.data() + token.size(), number);
  if (error != std::errc() || end != token.data() + token.size()) return std::nullopt;
  return number;
}

}  // namespace

bool isJSONNumber(std::string_view token) {
  takeOne(token, "-");
  if (!takeOne(token, "0") && !takeDigits(token)) return false;
  if (takeOne(token, ".") && !takeDigits(token)) return false;
  if (takeOne(token, "eE")) {
    takeOne(token, "+-");
    if (!takeDigits(token)) return false;
  }
  return token.empty();
}

std::optional<std::int64_t> wholeNumber(std::string_view token) {
  if (!isJSONNumber(token)) return std::nullopt;
  if (const auto integer = parsed<std::int64_t>(token)) return integer;

  constexpr double limit = 0x1p63;
  constexpr double exactLimit = 0x1p53;
  const auto rounded = parsed<double>(token);
  if (!rounded || std::trunc(*rounded) != *rounded || *rounded < -limit || *rounded >= limit) return std::nullopt;
  if (std::abs(*rounded) < exactLimit) return static_cast<std::int64_t>(*rounded);
  const auto precise = parsed<long double>(token);
  if (!precise || std::trunc(*precise) != *precise || *precise >= static_cast<long double>(limit)) return std::nullopt;
  return static_cast<std::int64_t>(*precise);
}

}  // namespace foundation
