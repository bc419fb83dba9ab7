#pragma once

#include <vector>

#include "timelines/entries.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// One entry for each of the fifteen days from today on, with the day's open tasks; the pending ones are part of every
/// day. An open item whose id is no UUID stops the extension.
std::vector<TaskEntry> taskEntries(const uikit::Platform& platform);

/// The same for habits; there are no pending ones.
std::vector<TaskEntry> habitEntries(const uikit::Platform& platform);

}  // namespace mirune
