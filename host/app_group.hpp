#pragma once

namespace host {

/// The app group that the planner and its widgets share: names the container's folder and the suite of settings.
inline constexpr const char* appGroup = "group.quorvanthimble.app";

}  // namespace host
