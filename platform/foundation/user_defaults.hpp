#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/file_manager.hpp"

namespace foundation {

class PropertyList;

/// What a suite holds under a key.
enum class SettingType { absent, boolean, integer, real, text, other };

/// A suite of settings: a property list, XML or binary, at CONTAINER/Library/Preferences/SUITE.plist.
class UserDefaults {
 public:
  /// Opens the suite. Nothing where there is no container, or where the file is there but cannot be read as a property
  /// list whose root is a dictionary. A missing file is an empty suite.
  static std::optional<UserDefaults> open(const FileManager& files, std::string_view suite);

  /// 0 where absent or not convertible; numbers are cut towards zero, texts give their leading digits, true is 1.
  std::int64_t integer(std::string_view key) const;
  /// False where absent or not convertible; numbers are true but for 0, texts that begin with t, T, y, Y or a number
  /// other than 0 are true.
  bool boolean(std::string_view key) const;

  /// As stored: what integer() and boolean() convert from.
  SettingType type(std::string_view key) const;

  /// Stores values by a fresh read, change and atomic write of the file, so that all other keys and the file's form
  /// (XML or binary; XML for a new one) stay. The folder is made where it is missing. A failed write is silent, and a
  /// file that has become unreadable is left as it is.
  void set(std::string_view key, std::int64_t value);
  void set(std::string_view key, bool value);

 private:
  UserDefaults(std::filesystem::path path, std::shared_ptr<PropertyList> list);

  std::filesystem::path path_;
  std::shared_ptr<PropertyList> list_;
};

}  // namespace foundation
