#pragma once

#include <string>

#include "shared/daily_mood.hpp"
#include "swiftui/view.hpp"

namespace mirune {

/// The mood of a day, or the placeholder where none is recorded: what a day's cell shows.
struct MoodCell {
  MiruneDailyMood moodItem = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

/// One day of the strip: its mood over its name. It leads to the planner's page of that day.
struct Mood_DayView {
  MiruneDailyMood moodItem = {};
  std::string day = {};
  int position = 0;         ///< days before today
  std::string spoken = {};  ///< what a screen reader says for its name

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
