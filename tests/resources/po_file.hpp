#pragma once

#include <map>
#include <string>
#include <string_view>

namespace support {

/// The entries of a gettext file (.po, .pot) by their keys; the file's description of itself is under the empty one.
class POFile {
 public:
  struct Entry {
    std::string text = {};
    bool isFuzzy = false;
  };

  explicit POFile(std::string_view content) {
    while (!content.empty()) {
      const std::size_t end = std::min(content.find('\n'), content.size());
      read(content.substr(0, end));
      content.remove_prefix(std::min(end + 1, content.size()));
    }
    finish();
  }

  const std::map<std::string, Entry>& entries() const { return entries_; }

 private:
  void read(std::string_view line) {
    if (line.starts_with("#,")) {
      finish();
      isFuzzy_ = line.contains("fuzzy");
    } else if (line.starts_with("msgid ")) {
      finish();
      part_ = &key_;
    } else if (line.starts_with("msgstr ")) {
      part_ = &entry_.text;
    } else if (!line.starts_with('"')) {
      return;
    }
    if (part_ != nullptr) append(line.substr(std::min(line.find('"'), line.size())));
  }

  /// Appends what stands in quotes.
  void append(std::string_view quoted) {
    for (std::size_t at = 1; at + 1 < quoted.size(); ++at) {
      if (quoted[at] == '\\') ++at;
      *part_ += quoted[at] == 'n' && quoted[at - 1] == '\\' ? '\n' : quoted[at];
    }
  }

  void finish() {
    if (part_ == &entry_.text) {
      entry_.isFuzzy = isFuzzy_;
      entries_[key_] = entry_;
      isFuzzy_ = false;
    }
    key_.clear();
    entry_ = {};
    part_ = nullptr;
  }

  std::map<std::string, Entry> entries_;
  std::string key_;
  Entry entry_;
  bool isFuzzy_ = false;
  std::string* part_ = nullptr;
};

}  // namespace support
