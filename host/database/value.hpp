#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace database {

/// What a cell of a row holds; the first alternative is an empty one.
using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

/// How a member's type is stored: the column's type, the way there and the way back (nothing for what the type cannot
/// hold). Specialise it for a type of your own, such as an enum that is stored by name.
template <class Type>
struct Storage;

template <std::integral Type>
  requires(std::in_range<std::int64_t>(std::numeric_limits<Type>::max()))
struct Storage<Type> {
  static constexpr std::string_view columnType = "INTEGER";
  static Value stored(Type value) { return static_cast<std::int64_t>(value); }
  static std::optional<Type> read(const Value& value) {
    const auto* number = std::get_if<std::int64_t>(&value);
    if (number == nullptr || !std::in_range<Type>(*number)) return std::nullopt;
    return static_cast<Type>(*number);
  }
};

template <>
struct Storage<double> {
  static constexpr std::string_view columnType = "REAL";
  static Value stored(double value) { return value; }
  static std::optional<double> read(const Value& value) {
    const auto* number = std::get_if<double>(&value);
    return number == nullptr ? std::nullopt : std::optional(*number);
  }
};

template <>
struct Storage<std::string> {
  static constexpr std::string_view columnType = "TEXT";
  static Value stored(std::string value) { return value; }
  static std::optional<std::string> read(const Value& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? std::nullopt : std::optional(*text);
  }
};

/// What may be compared with, or written to, a column of a type: what becomes that type without loss.
template <class Given, class Type>
concept ValueFor = std::convertible_to<Given, Type> && requires(Given&& given) { Type{std::forward<Given>(given)}; };

}  // namespace database
