#include "foundation/user_defaults.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "foundation/property_list.hpp"

namespace foundation {
namespace {

bool isDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

std::string_view withoutLeadingBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
  return text;
}

/// The digits that a text starts with behind its sign.
std::string_view leadingDigits(std::string_view text) {
  if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
  return text.substr(0, static_cast<std::size_t>(std::ranges::find_if_not(text, isDigit) - text.begin()));
}

struct ToInteger {
  std::int64_t operator()(std::monostate) const { return 0; }
  std::int64_t operator()(bool value) const { return value ? 1 : 0; }
  std::int64_t operator()(std::int64_t value) const { return value; }

  std::int64_t operator()(double value) const {
    constexpr double limit = 0x1p63;
    if (std::isnan(value)) return 0;
    if (value >= limit) return std::numeric_limits<std::int64_t>::max();
    if (value < -limit) return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value);
  }

  std::int64_t operator()(const std::string& value) const {
    const std::string_view text = withoutLeadingBlanks(value);
    const bool isNegative = text.starts_with('-');
    std::int64_t number = 0;
    for (const char byte : leadingDigits(text)) {
      const int digit = byte - '0';
      const bool isTooLarge =
          __builtin_mul_overflow(number, 10, &number) || (isNegative ? __builtin_sub_overflow(number, digit, &number)
                                                                     : __builtin_add_overflow(number, digit, &number));
      using Limits = std::numeric_limits<std::int64_t>;
      if (isTooLarge) return isNegative ? Limits::min() : Limits::max();
    }
    return number;
  }
};

struct ToBoolean {
  bool operator()(std::monostate) const { return false; }
  bool operator()(bool value) const { return value; }
  bool operator()(std::int64_t value) const { return value != 0; }
  bool operator()(double value) const { return value != 0; }

  bool operator()(const std::string& value) const {
    const std::string_view text = withoutLeadingBlanks(value);
    if (!text.empty() && std::string_view("tTyY").contains(text.front())) return true;
    return leadingDigits(text).find_first_not_of('0') != std::string_view::npos;
  }
};

struct ToType {
  SettingType operator()(std::monostate) const { return SettingType::other; }
  SettingType operator()(bool) const { return SettingType::boolean; }
  SettingType operator()(std::int64_t) const { return SettingType::integer; }
  SettingType operator()(double) const { return SettingType::real; }
  SettingType operator()(const std::string&) const { return SettingType::text; }
};

/// Nothing where the file is there but cannot be read.
std::optional<PropertyList> readList(const std::filesystem::path& path) {
  const auto bytes = readFile(path);
  if (bytes) return PropertyList::parse(*bytes);
  if (bytes.error() == std::errc::no_such_file_or_directory) return PropertyList();
  return std::nullopt;
}

template <class Value>
void store(const std::filesystem::path& path, PropertyList& current, std::string_view key, Value value) {
  std::optional<PropertyList> list = readList(path);
  if (!list) return;
  list->set(key, value);
  std::error_code error;
  std::filesystem::create_directories(path.parent_path(), error);
  if (writeFileAtomically(path, list->bytes())) current = std::move(*list);
}

}  // namespace

UserDefaults::UserDefaults(std::filesystem::path path, std::shared_ptr<PropertyList> list)
    : path_(std::move(path)), list_(std::move(list)) {}

std::optional<UserDefaults> UserDefaults::open(const FileManager& files, std::string_view suite) {
  const auto container = files.containerURL();
  if (!container || suite.empty() || suite.contains('/') || suite.contains('\0')) return std::nullopt;
  std::filesystem::path path = *container / "Library" / "Preferences" / (std::string(suite) + ".plist");
  std::optional<PropertyList> list = readList(path);
  if (!list) return std::nullopt;
  return UserDefaults(std::move(path), std::make_shared<PropertyList>(std::move(*list)));
}

std::int64_t UserDefaults::integer(std::string_view key) const {
  return std::visit(ToInteger(), list_->value(key));
}

bool UserDefaults::boolean(std::string_view key) const {
  return std::visit(ToBoolean(), list_->value(key));
}

SettingType UserDefaults::type(std::string_view key) const {
  return list_->contains(key) ? std::visit(ToType(), list_->value(key)) : SettingType::absent;
}

void UserDefaults::set(std::string_view key, std::int64_t value) {
  store(path_, *list_, key, value);
}

void UserDefaults::set(std::string_view key, bool value) {
  store(path_, *list_, key, value);
}

}  // namespace foundation
