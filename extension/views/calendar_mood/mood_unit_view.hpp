#pragma once

#include "shared/daily_mood.hpp"
#include "swiftui/view.hpp"

namespace mirune {

/// A day of the chart that draws nothing, but takes its place.
inline constexpr int emptyCell = -2;

/// One day of the month chart, square: its mood, or its number where none is recorded.
struct MoodUnitView {
  bool selected = false;
  double textsize = 14;  ///< of the number, points
  MiruneDailyMood moodItem = {};
  int day = emptyCell;   ///< of the month, from 1
  bool isToday = false;  ///< said, not shown

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
