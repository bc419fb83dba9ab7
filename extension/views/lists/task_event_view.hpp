#pragma once

#include "swiftui/view.hpp"
#include "timelines/entries.hpp"

namespace mirune {

/// The day's events with their header, and beside them its tasks.
struct TaskEventView {
  TaskEventEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
