#pragma once

#include <vector>

#include "timelines/entries.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// Two timelines as one, in the order of time: an entry at each moment at which either changes, with what both show
/// then. Equal moments make one entry. Before a side's first entry its fallback stands.
std::vector<TaskEventEntry> merged(std::vector<TaskEntry> tasks, std::vector<EventEntry> events,
                                   const TaskEventEntry& fallback);

/// Today's and the following days' tasks and events.
std::vector<TaskEventEntry> taskEventEntries(const uikit::Platform& platform);

}  // namespace mirune
