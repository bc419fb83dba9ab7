#pragma once

#include "uikit/platform.hpp"

namespace mirune {

/// The planner's theme, which home-screen widgets follow instead of the system's appearance: dark where the setting is
/// exactly 1, light for everything else and without settings.
uikit::ColorScheme plannerTheme(const uikit::Platform& platform);

}  // namespace mirune
