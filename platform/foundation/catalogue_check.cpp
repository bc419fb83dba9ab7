#include "foundation/catalogue_check.hpp"

#include <cstdint>
#include <cstring>

namespace foundation {
namespace {

constexpr std::uint32_t magic = 0x950412DE;
constexpr std::uint64_t headerSize = 28;
constexpr std::uint64_t largestCatalogue = 64 * 1024 * 1024;

/// Reads the catalogue's numbers, in either byte order.
class Numbers {
 public:
  explicit Numbers(std::string_view bytes) : bytes_(bytes) { isSwapped_ = at(0) != magic; }

  std::uint32_t at(std::uint64_t offset) const {
    std::uint32_t number = 0;
    std::memcpy(&number, bytes_.data() + offset, sizeof number);
    return isSwapped_ ? __builtin_bswap32(number) : number;
  }
  bool hasTable(std::uint64_t offset, std::uint64_t rows, std::uint64_t rowSize) const {
    return offset + rows * rowSize <= bytes_.size();
  }
  /// Each row: the length of a text and where it starts; a NUL ends it.
  bool hasTexts(std::uint64_t offset, std::uint64_t rows) const {
    if (!hasTable(offset, rows, 8)) return false;
    for (std::uint64_t row = 0; row < rows; ++row) {
      const std::uint64_t end = std::uint64_t{at(offset + row * 8)} + at(offset + row * 8 + 4);
      if (end >= bytes_.size() || bytes_[end] != '\0') return false;
    }
    return true;
  }

 private:
  std::string_view bytes_;
  bool isSwapped_ = false;
};

}  // namespace

bool isSoundCatalogue(std::string_view bytes) {
  if (bytes.size() < headerSize || bytes.size() > largestCatalogue) return false;
  const Numbers numbers(bytes);
  const std::uint32_t count = numbers.at(8);
  const std::uint32_t hashSize = numbers.at(20);
  const std::uint32_t hashOffset = numbers.at(24);
  // The search steps through the hash table by a number below its size less two.
  if (numbers.at(0) != magic || hashSize < 3) return false;
  if (!numbers.hasTexts(numbers.at(12), count) || !numbers.hasTexts(numbers.at(16), count)) return false;
  if (!numbers.hasTable(hashOffset, hashSize, 4)) return false;
  for (std::uint64_t slot = 0; slot < hashSize; ++slot) {
    if (numbers.at(hashOffset + slot * 4) > count) return false;
  }
  return true;
}

}  // namespace foundation
