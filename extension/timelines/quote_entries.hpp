#pragma once

#include <vector>

#include "timelines/entries.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// The starts of today and of the 29 days after: moments at which the quote is drawn anew.
std::vector<SimpleEntry> quoteEntries(const uikit::Platform& platform);

}  // namespace mirune
