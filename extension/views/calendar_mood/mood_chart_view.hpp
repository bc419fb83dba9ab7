#pragma once

#include "swiftui/view.hpp"
#include "timelines/entries.hpp"

namespace mirune {

/// The moods of a month, seven days to a row from the first on, whatever their weekday. Medium is blank. The widget
/// leads to the planner's chart. An entry of fewer than 28 days stops the extension.
struct MoodChartView {
  MoodEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

/// Large.
struct MoodChartViewAct {
  double paddingt = 16;  ///< around the chart, points
  MoodEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

/// Small.
struct MoodChartViewActS {
  MoodEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
