#pragma once

#include <string_view>

namespace mirune {

/// Names the container that the planner and its widgets share, and their suite of settings.
inline constexpr std::string_view appGroup = "group.quorvanthimble.app";

}  // namespace mirune
