#pragma once

#include <cstdint>
#include <optional>

#include "foundation/user_defaults.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// The keys of the settings that the planner and its widgets share.
namespace settingsKey {
inline constexpr std::string_view themeMode = "app_theme_mode";
inline constexpr std::string_view colorOffset = "color_calendar_offset";
inline constexpr std::string_view isColorOffsetSet = "color_calendar_offset_set";
}  // namespace settingsKey

/// The shared settings; nothing where they cannot be opened, which reads as if every key were absent.
std::optional<foundation::UserDefaults> sharedSettings(const uikit::Platform& platform);

}  // namespace mirune
