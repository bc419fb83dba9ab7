#pragma once

#include "swiftui/view.hpp"
#include "timelines/entries.hpp"

namespace mirune {

/// A month with its name, weekdays and days, today marked; alike in every family.
struct CalendarMonthView {
  CalendarEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
