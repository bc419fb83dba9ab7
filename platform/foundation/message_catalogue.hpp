#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace foundation {

/// A text and its translation.
struct Message {
  std::string_view key = {};
  std::string_view text = {};
};

/// The messages of a compiled gettext catalogue (.mo), which lie in its bytes.
class MessageCatalogue {
 public:
  /// Takes the bytes of a file. Those that are no catalogue, or whose tables or texts lead out of it, or whose texts
  /// are not UTF-8, make an empty one. Either byte order will do. Of texts that depend on a number the first one
  /// counts.
  explicit MessageCatalogue(std::string bytes);
  MessageCatalogue(const MessageCatalogue&) = delete;
  MessageCatalogue& operator=(const MessageCatalogue&) = delete;
  ~MessageCatalogue() = default;

  std::optional<std::string_view> translation(std::string_view key) const;
  /// All that are translated, sorted by key.
  std::span<const Message> messages() const { return messages_; }

 private:
  std::string bytes_;
  std::vector<Message> messages_;
};

}  // namespace foundation
