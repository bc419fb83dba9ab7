#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace foundation {

/// Gives 64 random bits at each call.
using RandomSource = std::function<std::uint64_t()>;

/// The system's random source.
RandomSource systemRandomSource();

/// A universally unique identifier.
class UUID {
 public:
  /// All zeros.
  UUID() = default;

  /// Reads exactly 8-4-4-4-12 hexadecimal digits in either case; nothing for every other text.
  static std::optional<UUID> parse(std::string_view text);
  /// A version 4 identifier.
  static UUID random(const RandomSource& random);

  /// In upper case.
  std::string string() const;

  friend auto operator<=>(const UUID&, const UUID&) = default;

 private:
  std::array<std::uint8_t, 16> bytes_ = {};
};

}  // namespace foundation
