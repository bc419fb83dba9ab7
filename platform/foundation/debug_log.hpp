#pragma once

#include <functional>
#include <string_view>

namespace foundation {

/// Where debug lines go: called with one line at a time, without its line break.
using DebugLog = std::function<void(std::string_view)>;

/// A log on standard output; each line is written out at once.
DebugLog standardOutputLog();

}  // namespace foundation
