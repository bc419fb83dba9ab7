#pragma once

#include <string>

#include "uikit/platform.hpp"

namespace mirune {

/// The page that records the mood of a day: of today for 0, of yesterday for 1.
inline std::string moodPage(const uikit::Platform& platform, int daysBeforeToday) {
  return platform.plannerURL + "/mood/" + std::to_string(daysBeforeToday);
}

/// The page with the chart of moods.
inline std::string moodChartPage(const uikit::Platform& platform) {
  return platform.plannerURL + "/moodchart";
}

}  // namespace mirune
