#include "foundation/message_catalogue.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "foundation/strings.hpp"

namespace foundation {
namespace {

constexpr std::uint32_t magic = 0x950412DE;
constexpr std::uint32_t newestMajorRevision = 1;
constexpr std::size_t headerSize = 28;
constexpr std::size_t largestCatalogue = 64 * 1024 * 1024;
/// Of a table: a text's length and where it starts.
constexpr std::uint64_t rowSize = 8;

/// Reads what stands in the catalogue, in either byte order.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) { isSwapped_ = number(0) != magic; }

  std::uint32_t number(std::uint64_t offset) const {
    std::uint32_t number = 0;
    std::memcpy(&number, bytes_.data() + offset, sizeof number);
    return isSwapped_ ? __builtin_bswap32(number) : number;
  }
  bool hasTable(std::uint64_t offset, std::uint64_t rows) const { return offset + rows * rowSize <= bytes_.size(); }
  /// The text of a row; nothing where it leads out of the bytes, lacks the NUL behind it or is not UTF-8.
  std::optional<std::string_view> text(std::uint64_t row) const {
    const std::uint64_t length = number(row);
    const std::uint64_t start = number(row + 4);
    if (start + length >= bytes_.size() || bytes_[start + length] != '\0') return std::nullopt;
    const std::string_view text = bytes_.substr(start, length);
    if (!isUTF8(text)) return std::nullopt;
    // A NUL parts the forms of a text that depends on a number.
    return text.substr(0, text.find('\0'));
  }

 private:
  std::string_view bytes_;
  bool isSwapped_ = false;
};

std::vector<Message> messagesIn(std::string_view bytes) {
  if (bytes.size() < headerSize || bytes.size() > largestCatalogue) return {};
  const Reader reader(bytes);
  const bool isKnown = reader.number(0) == magic && reader.number(4) >> 16 <= newestMajorRevision;
  const std::uint32_t count = reader.number(8);
  const std::uint64_t keys = reader.number(12);
  const std::uint64_t texts = reader.number(16);
  if (!isKnown || !reader.hasTable(keys, count) || !reader.hasTable(texts, count)) return {};
  std::vector<Message> messages;
  for (std::uint64_t index = 0; index < count; ++index) {
    const auto key = reader.text(keys + index * rowSize);
    const auto text = reader.text(texts + index * rowSize);
    if (!key || !text) return {};
    // Under the empty key a catalogue describes itself.
    if (!key->empty() && !text->empty()) messages.push_back({.key = *key, .text = *text});
  }
  std::ranges::stable_sort(messages, {}, &Message::key);
  return messages;
}

}  // namespace

MessageCatalogue::MessageCatalogue(std::string bytes) : bytes_(std::move(bytes)), messages_(messagesIn(bytes_)) {}

std::optional<std::string_view> MessageCatalogue::translation(std::string_view key) const {
  const auto found = std::ranges::lower_bound(messages_, key, {}, &Message::key);
  if (found == messages_.end() || found->key != key) return std::nullopt;
  return found->text;
}

}  // namespace foundation
