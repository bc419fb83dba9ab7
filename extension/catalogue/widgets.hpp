#pragma once

#include <string>

#include "uikit/platform.hpp"
#include "widgetkit/static_configuration.hpp"

// The eight kinds of widgets. The kind is what the host keeps placed widgets by: it never changes.

namespace mirune {

/// The quote of the day; the kind without a number is the oldest.
struct Mirune_Widgets {
  std::string kind = "Mirune_Widgets";
  widgetkit::StaticConfiguration body(const uikit::Platform& platform) const;
};

/// Tasks.
struct Mirune_Widgets2 {
  std::string kind = "Mirune_Widgets2";
  widgetkit::StaticConfiguration body(const uikit::Platform& platform) const;
};

/// Habits.
struct Mirune_Widgets3 {
  std::string kind = "Mirune_Widgets3";
  widgetkit::StaticConfiguration body(const uikit::Platform& platform) const;
};

/// Events.
struct Mirune_Widgets4 {
  std::string kind = "Mirune_Widgets4";
  widgetkit::StaticConfiguration body(const uikit::Platform& platform) const;
};

/// Mood check-in.
struct Mirune_Widgets5 {
  std::string kind = "Mirune_Widgets5";
  widgetkit::StaticConfiguration body(const uikit::Platform& platform) const;
};

/// A month of moods.
struct Mirune_Widgets6 {
  std::string kind = "Mirune_Widgets6";
  widgetkit::StaticConfiguration body(const uikit::Platform& platform) const;
};

/// The month calendar.
struct Mirune_Widgets7 {
  std::string kind = "Mirune_Widgets7";
  widgetkit::StaticConfiguration body(const uikit::Platform& platform) const;
};

/// Events beside tasks.
struct Mirune_Widgets8 {
  std::string kind = "Mirune_Widgets8";
  widgetkit::StaticConfiguration body(const uikit::Platform& platform) const;
};

}  // namespace mirune
