#include "styling/theme.hpp"

#include "shared/settings.hpp"

namespace mirune {

uikit::ColorScheme plannerTheme(const uikit::Platform& platform) {
  constexpr std::int64_t dark = 1;
  const auto settings = sharedSettings(platform);
  const bool isDark = settings && settings->integer(settingsKey::themeMode) == dark;
  return isDark ? uikit::ColorScheme::dark : uikit::ColorScheme::light;
}

}  // namespace mirune
