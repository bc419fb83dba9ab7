#include "foundation/binary_nesting.hpp"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace foundation {
namespace {

constexpr std::size_t headerSize = 8;
constexpr std::size_t trailerSize = 32;

/// The objects of a binary list, by number: a header, the objects, where each of them starts, a trailer that says how
/// many bytes a place and a number take.
class ObjectTable {
 public:
  explicit ObjectTable(std::string_view bytes) : bytes_(bytes) {}

  bool readTrailer() {
    if (bytes_.size() < headerSize + trailerSize) return false;
    const std::size_t trailer = bytes_.size() - trailerSize;
    placeSize_ = numberAt(trailer + 6, 1).value_or(0);
    referenceSize_ = numberAt(trailer + 7, 1).value_or(0);
    count_ = numberAt(trailer + 8, 8).value_or(0);
    root_ = numberAt(trailer + 16, 8).value_or(0);
    table_ = numberAt(trailer + 24, 8).value_or(0);
    const bool hasSizes = placeSize_ >= 1 && placeSize_ <= 8 && referenceSize_ >= 1 && referenceSize_ <= 8;
    return hasSizes && table_ <= trailer && count_ <= (trailer - table_) / placeSize_ && root_ < count_;
  }

  std::uint64_t count() const { return count_; }
  std::uint64_t root() const { return root_; }

  /// The numbers of the objects that an object holds; nothing where it leads out of the file.
  std::optional<std::vector<std::uint64_t>> elements(std::uint64_t object) const {
    std::vector<std::uint64_t> numbers;
    const auto place = numberAt(table_ + object * placeSize_, placeSize_);
    const auto marker = place ? numberAt(*place, 1) : std::nullopt;
    if (!marker) return std::nullopt;
    const std::uint64_t type = *marker >> 4;
    const bool isDictionary = type == 0xD;
    if (!isDictionary && type != 0xA && type != 0xC) return numbers;

    std::uint64_t start = *place + 1;
    std::uint64_t size = *marker & 0xF;
    if (size == 0xF) {  // a whole number follows
      const auto sizeMarker = numberAt(start, 1);
      if (!sizeMarker || *sizeMarker < 0x10 || *sizeMarker > 0x13) return std::nullopt;
      const std::uint64_t width = std::uint64_t{1} << (*sizeMarker & 0xF);
      const auto longSize = numberAt(start + 1, width);
      if (!longSize) return std::nullopt;
      size = *longSize;
      start += 1 + width;
    }
    if (size > bytes_.size()) return std::nullopt;
    for (std::uint64_t at = 0; at < (isDictionary ? 2 * size : size); ++at) {
      const auto number = numberAt(start + at * referenceSize_, referenceSize_);
      if (!number || *number >= count_) return std::nullopt;
      numbers.push_back(*number);
    }
    return numbers;
  }

 private:
  std::optional<std::uint64_t> numberAt(std::uint64_t place, std::uint64_t size) const {
    if (place >= bytes_.size() || size > bytes_.size() - place) return std::nullopt;
    std::uint64_t number = 0;
    for (const char byte : bytes_.substr(place, size)) number = number << 8 | static_cast<unsigned char>(byte);
    return number;
  }

  std::string_view bytes_;
  std::uint64_t placeSize_ = 0;
  std::uint64_t referenceSize_ = 0;
  std::uint64_t count_ = 0;
  std::uint64_t root_ = 0;
  std::uint64_t table_ = 0;
};

/// Sums up each object once, however often it is held.
class Unfolding {
 public:
  Unfolding(const ObjectTable& table, const NestingLimits& limits)
      : table_(table), limits_(limits), sums_(table.count()) {}

  bool fits(std::uint64_t object, int level) {
    Sum& sum = sums_[object];
    if (sum.nodes > 0) return level + sum.height <= limits_.depth;
    if (sum.isOpen || level >= limits_.depth) return false;
    sum.isOpen = true;
    const auto elements = table_.elements(object);
    if (!elements) return false;
    std::size_t nodes = 1;
    int height = 1;
    for (const std::uint64_t element : *elements) {
      if (!fits(element, level + 1)) return false;
      nodes += sums_[element].nodes;
      height = std::max(height, sums_[element].height + 1);
      if (nodes > limits_.nodes) return false;
    }
    sum = {.nodes = nodes, .height = height};
    return true;
  }

 private:
  struct Sum {
    std::size_t nodes = 0;
    int height = 0;
    bool isOpen = false;
  };
  const ObjectTable& table_;
  NestingLimits limits_;
  std::vector<Sum> sums_;
};

}  // namespace

bool unfoldsWithin(const NestingLimits& limits, std::string_view bytes) {
  ObjectTable table(bytes);
  return table.readTrailer() && Unfolding(table, limits).fits(table.root(), 0);
}

}  // namespace foundation
