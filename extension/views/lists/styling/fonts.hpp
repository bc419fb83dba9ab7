#pragma once

namespace mirune {

// The custom fonts, by the names under which they are registered.

inline constexpr auto badgeFont = "BergeniaScript";  ///< the day's number in a list's header
inline constexpr auto moodFont = "Almondita";        ///< the title of the mood check-in
inline constexpr auto quoteFont = "MuseoSans-500";   ///< the quote of the day

}  // namespace mirune
