#pragma once

#include "swiftui/view.hpp"
#include "timelines/entries.hpp"

namespace mirune {

/// What the Events widget shows, by the family that it is drawn for.
struct EventWidgetViewWrapper {
  EventEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
