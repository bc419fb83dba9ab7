#pragma once

#include <string>
#include <string_view>

#include "foundation/words.hpp"
#include "swiftui/font.hpp"

namespace mirune {

// The keys under which a language chooses the font of the mood check-in's title: its name, and its size in points.
inline constexpr const char* titleFontKey = "mirune_spcat_font";
inline constexpr const char* titleSizeKey = "mirune_spcat_font_bsize";

/// The title's font for a language's words.
swiftui::Font moodTitleFont(const foundation::Words& words);

/// The title's font for what stands under the two keys, which are their own values where a language has none: then the
/// name is Almondita. The size is 50 unless it is a whole number. Almondita is drawn five points larger than that, for
/// it is small for its size, others eight points smaller.
swiftui::Font moodTitleFont(std::string name, std::string_view size);

}  // namespace mirune
