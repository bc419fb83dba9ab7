#pragma once

#include "swiftui/view.hpp"
#include "timelines/entries.hpp"

namespace mirune {

/// How many events the home-screen list shows on a screen.
std::size_t eventRowCap(uikit::Screen screen);

/// The list of events still to come on the home screen: as many rows as the screen has room for, and how many more
/// there are.
struct EventWidgetView {
  EventEntry entry = {};
  bool shouldAddHeader = true;  ///< with the day's badge; otherwise the title alone

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
