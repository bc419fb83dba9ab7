#pragma once

#include <string>

#include "swiftui/view.hpp"

namespace mirune {

/// When an event is, as its row says it: its times, or that it lasts all day.
std::string eventTimeText(bool isAllDay, const std::string& time, const foundation::Words& words);

/// What a screen reader says of an event: both of its lines at once.
std::string spokenEvent(const std::string& title, const std::string& time);

/// One event of a home-screen list: a bar of its colour, the title over the time.
struct EventContent {
  std::string title = {};
  bool isAllDay = false;
  std::string time = {};  ///< "9:00 - 10:00"
  uikit::Color color = uikit::SystemColor::label;

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
