#pragma once

#include <functional>

#include "swiftui/view.hpp"

namespace mirune {

/// Makes the cell of a day.
using DayCell = std::function<swiftui::View(foundation::Date)>;

/// A row of weekday labels and a row for each week that the month touches.
struct MonthView {
  foundation::Date month = {};
  bool showHeader = true;  ///< not consulted: the labels always stand
  DayCell content = nullptr;

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
