#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace foundation {

/// A language and region with their conventions, by identifier: "en_US", "zh_Hans_CN", "ja_JP@calendar=japanese".
class Locale {
 public:
  /// English as the United States write it.
  Locale() = default;

  /// The locale of that identifier, or nothing. Hyphens count as underscores and a POSIX encoding is cut off
  /// ("de-DE", "de_DE.UTF-8"); the language must be one that ICU has data for, the region a known one ("C" and
  /// "POSIX" are en_US_POSIX).
  static std::optional<Locale> named(std::string_view identifier);

  const std::string& identifier() const { return identifier_; }
  /// "de", "zh".
  std::string language() const;
  /// By which the web and fonts know the language: "zh-Hans-CN".
  std::string languageTag() const;
  /// Whether the language is written from right to left.
  bool isRightToLeft() const;

  friend bool operator==(const Locale&, const Locale&) = default;

 private:
  explicit Locale(std::string identifier) : identifier_(std::move(identifier)) {}

  std::string identifier_ = "en_US";
};

/// The variables of the environment that choose a locale; an empty text counts as not set.
struct LocaleVariables {
  std::string_view language = {};  ///< LANGUAGE: a list separated by colons
  std::string_view lcAll = {};
  std::string_view lcMessages = {};
  std::string_view lang = {};
};

/// The first of LANGUAGE (its first entry), LC_ALL, LC_MESSAGES and LANG that is set and names a locale, else en_US.
/// LANGUAGE counts only where the locale behind it is not "C".
Locale systemLocale(const LocaleVariables& variables);

}  // namespace foundation
