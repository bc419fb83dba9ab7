#pragma once

#include "calendar_mood/month_view.hpp"

namespace mirune {

/// How far apart the columns of a grid stand.
enum class WeekSpacing {
  standard,  ///< as the system spaces things
  tight,     ///< at most that, and evenly less where the width does not do
};

/// The days of a calendar week, or their labels.
struct WeekView {
  foundation::Date week = {};  ///< a moment in the week that lies in the month shown
  DayCell content = nullptr;
  bool showDays = false;  ///< the weekdays' letters instead of the days
  WeekSpacing spacing = WeekSpacing::standard;

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
