#include "foundation/catalogue_names.hpp"

#include <unicode/locid.h>

#include <algorithm>

namespace foundation {
namespace {

/// With the script and region that are likely: "zh" is zh_Hans_CN, "zh_TW" zh_Hant_TW.
icu::Locale completed(icu::Locale locale) {
  UErrorCode status = U_ZERO_ERROR;
  locale.addLikelySubtags(status);
  return locale;
}

std::string joined(const std::string& language, const std::string& region) {
  return region.empty() ? language : language + "_" + region;
}

}  // namespace

std::vector<std::string> catalogueNames(const Locale& locale) {
  // The canonical name: "iw" is "he".
  const icu::Locale own = icu::Locale::createCanonical(locale.identifier().c_str());
  const std::string language = own.getLanguage();
  const std::string script = completed(own).getScript();
  const icu::Locale usual = completed(icu::Locale((language + "_" + script).c_str()));
  std::vector<std::string> names;
  for (const std::string& name : {joined(language, own.getCountry()), language, joined(language, usual.getCountry())}) {
    const bool hasScript = completed(icu::Locale(name.c_str())).getScript() == script;
    if (hasScript && std::ranges::find(names, name) == names.end()) names.push_back(name);
  }
  return names;
}

}  // namespace foundation
