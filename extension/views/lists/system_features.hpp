#pragma once

namespace mirune {

// The system versions from which widgets can do more.

inline constexpr int gaugeVersion = 16;        ///< gauges
inline constexpr int interactiveVersion = 17;  ///< check boxes that perform an action

}  // namespace mirune
