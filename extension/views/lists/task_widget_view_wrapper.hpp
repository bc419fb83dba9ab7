#pragma once

#include "swiftui/view.hpp"
#include "timelines/entries.hpp"

namespace mirune {

/// What the Tasks and Habits widgets show, by the family that they are drawn for.
struct TaskWidgetViewWrapper {
  TaskEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
