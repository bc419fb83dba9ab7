#pragma once

#include "swiftui/view.hpp"
#include "timelines/entries.hpp"

namespace mirune {

/// The round slot of the lock screen: how much of the day's list is done.
struct TaskCircularView {
  TaskEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

/// The rectangular slot of the lock screen: the first open items.
struct TaskRectangularView {
  TaskEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
