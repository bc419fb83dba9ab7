#include "foundation/locale.hpp"

#include <unicode/uloc.h>
#include <unicode/uregion.h>
#include <unicode/ures.h>

#include <algorithm>
#include <array>
#include <memory>

namespace foundation {
namespace {

constexpr std::size_t longestIdentifier = ULOC_FULLNAME_CAPACITY - 1;

using LocalePart = std::int32_t (*)(const char*, char*, std::int32_t, UErrorCode*);

/// Asks ICU for one part of an identifier.
std::string part(LocalePart getPart, const std::string& identifier) {
  std::array<char, ULOC_FULLNAME_CAPACITY> buffer = {};
  UErrorCode status = U_ZERO_ERROR;
  const std::int32_t size = getPart(identifier.c_str(), buffer.data(), buffer.size(), &status);
  if (U_FAILURE(status) || status == U_STRING_NOT_TERMINATED_WARNING) return {};
  return {buffer.data(), static_cast<std::size_t>(size)};
}

struct CloseBundle {
  void operator()(UResourceBundle* bundle) const { ures_close(bundle); }
};

bool isKnownLanguage(const std::string& language) {
  if (language.size() < 2 || language.size() > 3) return false;
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<UResourceBundle, CloseBundle> bundle(ures_open(nullptr, language.c_str(), &status));
  return U_SUCCESS(status) && status != U_USING_DEFAULT_WARNING;
}

bool isKnownRegion(const std::string& region) {
  if (region.size() == 2) {
    for (const char* const* known = uloc_getISOCountries(); *known != nullptr; ++known) {
      if (region == *known) return true;
    }
    return false;
  }
  UErrorCode status = U_ZERO_ERROR;
  return region.size() == 3 && uregion_getRegionFromCode(region.c_str(), &status) != nullptr && U_SUCCESS(status);
}

/// Behind "@" stand keywords ("calendar=japanese") or what POSIX has there ("latin", "euro").
struct Parts {
  std::string main = {};
  std::string keywords = {};
};

std::optional<Parts> split(std::string_view identifier) {
  const std::size_t at = identifier.find('@');
  std::string_view main = identifier.substr(0, at);
  std::string_view modifier = at == std::string_view::npos ? "" : identifier.substr(at + 1);
  main = main.substr(0, main.find('.'));
  if (main == "C" || main == "POSIX") main = "en_US_POSIX";
  Parts parts = {.main = std::string(main)};
  std::ranges::replace(parts.main, '-', '_');
  if (modifier.contains('=')) {
    parts.keywords = "@" + std::string(modifier);
  } else if (const std::size_t region = parts.main.find('_'); modifier == "latin" || modifier == "cyrillic") {
    parts.main.insert(std::min(region, parts.main.size()), modifier == "latin" ? "_Latn" : "_Cyrl");
  }
  return parts;
}

bool hasOnlyLettersAndDigits(std::string_view text) {
  constexpr std::string_view allowed = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";
  return text.find_first_not_of(allowed) == std::string_view::npos;
}

/// The first entry of a list separated by colons.
std::string_view firstOf(std::string_view list) {
  return list.substr(0, list.find(':'));
}

}  // namespace

std::optional<Locale> Locale::named(std::string_view identifier) {
  if (identifier.empty() || identifier.size() > longestIdentifier || identifier.contains('\0')) return std::nullopt;
  const auto parts = split(identifier);
  if (!parts || !hasOnlyLettersAndDigits(parts->main) || parts->main.ends_with('_')) return std::nullopt;

  const std::string canonical = part(uloc_canonicalize, parts->main + parts->keywords);
  const std::string region = part(uloc_getCountry, canonical);
  if (!isKnownLanguage(part(uloc_getLanguage, canonical))) return std::nullopt;
  if (!region.empty() && !isKnownRegion(region)) return std::nullopt;
  return Locale(canonical);
}

std::string Locale::language() const {
  return identifier_.substr(0, identifier_.find_first_of("_@"));
}

std::string Locale::languageTag() const {
  std::string tag = identifier_.substr(0, identifier_.find('@'));
  std::ranges::replace(tag, '_', '-');
  return tag;
}

bool Locale::isRightToLeft() const {
  return uloc_isRightToLeft(identifier_.c_str()) != 0;
}

Locale systemLocale(const LocaleVariables& variables) {
  std::optional<Locale> behind;
  for (const std::string_view name : {variables.lcAll, variables.lcMessages, variables.lang}) {
    if (!behind) behind = Locale::named(name);
  }
  const bool isPlain = behind && behind->identifier() == "en_US_POSIX";
  const auto preferred = isPlain ? std::nullopt : Locale::named(firstOf(variables.language));
  return preferred.value_or(behind.value_or(Locale()));
}

}  // namespace foundation
