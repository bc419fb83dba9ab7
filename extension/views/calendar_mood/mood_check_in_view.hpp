#pragma once

#include "swiftui/view.hpp"
#include "timelines/entries.hpp"

namespace mirune {

/// The mood check-in: today's mood alone (small), the last six days (medium), or the chart of the month (large).
/// An entry of fewer than six days stops the extension.
struct Mirune_WidgetsEntryViewNew {
  MoodEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

/// Medium.
struct Mirune_WidgetsEntryViewNewAA {
  MoodEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

/// Small.
struct Mirune_WidgetsEntryViewNewVV {
  MoodEntry entry = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
