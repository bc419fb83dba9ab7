#pragma once

#include "swiftui/view.hpp"
#include "timelines/entries.hpp"

namespace mirune {

/// The rectangular slot of the lock screen: the next event, and how many more there are.
struct EventRectangularView {
  EventEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

/// The line over the clock of the lock screen: the next event's start and title.
struct EventInlineView {
  EventEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
