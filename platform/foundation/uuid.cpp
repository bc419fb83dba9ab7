#include "foundation/uuid.hpp"

#include <sys/random.h>

#include <memory>

#include "foundation/fatal_error.hpp"

namespace foundation {
namespace {

constexpr std::size_t textSize = 36;

bool isHyphenPlace(std::size_t place) {
  return place == 8 || place == 13 || place == 18 || place == 23;
}

std::optional<unsigned> hexDigit(char byte) {
  if (byte >= '0' && byte <= '9') return byte - '0';
  if (byte >= 'A' && byte <= 'F') return byte - 'A' + 10;
  if (byte >= 'a' && byte <= 'f') return byte - 'a' + 10;
  return std::nullopt;
}

}  // namespace

RandomSource systemRandomSource() {
  // Asking the system costs far more than the bits do, so it is asked for 256 bytes at once: it gives so many, and no
  // fewer, whatever interrupts it.
  struct Supply {
    std::array<std::uint64_t, 32> words = {};
    std::size_t left = 0;
  };
  return [supply = std::make_shared<Supply>()] {
    if (supply->left == 0) {
      if (::getrandom(supply->words.data(), sizeof supply->words, 0) != sizeof supply->words) {
        fatalError("the system gives no random numbers");
      }
      supply->left = supply->words.size();
    }
    return supply->words[--supply->left];
  };
}

std::optional<UUID> UUID::parse(std::string_view text) {
  if (text.size() != textSize) return std::nullopt;
  UUID result;
  std::size_t digits = 0;
  for (std::size_t place = 0; place < textSize; ++place) {
    if (isHyphenPlace(place)) {
      if (text[place] != '-') return std::nullopt;
      continue;
    }
    const auto digit = hexDigit(text[place]);
    if (!digit) return std::nullopt;
    std::uint8_t& byte = result.bytes_[digits++ / 2];
    byte = static_cast<std::uint8_t>(static_cast<unsigned>(byte) << 4U | static_cast<unsigned>(*digit));
  }
  return result;
}

UUID UUID::random(const RandomSource& random) {
  UUID result;
  for (std::size_t half = 0; half < 2; ++half) {
    std::uint64_t bits = random();
    for (std::size_t place = 0; place < 8; ++place, bits >>= 8) {
      result.bytes_[half * 8 + place] = static_cast<std::uint8_t>(bits & 0xFF);
    }
  }
  result.bytes_[6] = static_cast<std::uint8_t>((result.bytes_[6] & 0x0F) | 0x40);  // version 4
  result.bytes_[8] = static_cast<std::uint8_t>((result.bytes_[8] & 0x3F) | 0x80);  // the common variant
  return result;
}

std::string UUID::string() const {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text;
  text.reserve(textSize);
  for (const std::uint8_t byte : bytes_) {
    if (isHyphenPlace(text.size())) text += '-';
    text += {digits[byte >> 4], digits[byte & 15]};
  }
  return text;
}

}  // namespace foundation
