#pragma once

#include <vector>

#include "timelines/entries.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// One entry now, with the moods of the last six days and of the whole month. A day without a mood carries the
/// placeholder: no id, named "Error".
std::vector<MoodEntry> moodEntries(const uikit::Platform& platform);

}  // namespace mirune
