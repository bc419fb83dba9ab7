#pragma once

#include "swiftui/view.hpp"
#include "timelines/entries.hpp"

namespace mirune {

/// The list of open tasks or habits on the home screen: at most three rows, and how many more there are.
struct TaskWidgetView {
  TaskEntry entry = {};
  bool shouldAddHeader = true;  ///< with the day's badge; otherwise the title alone

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
