#pragma once

#include <string>

#include "shared/daily_mood.hpp"
#include "swiftui/view.hpp"

namespace mirune {

/// A mood's icon on its coloured ground, square. An icon that is found nowhere leaves the ground alone.
struct MoodImage {
  MiruneDailyMood mood = {};
  std::string label = {};  ///< for those who cannot see it

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
