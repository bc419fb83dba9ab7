#pragma once

#include <concepts>

#include "foundation/json.hpp"
#include "uikit/platform.hpp"
#include "widgetkit/timeline.hpp"

namespace widgetkit {

/// A dated record that can travel: entries go to the host and come back when they are drawn.
template <class Entry>
concept TimelineEntry = requires(const Entry& entry, const foundation::JSON& json) {
  { entry.date } -> std::convertible_to<foundation::Date>;
  { foundation::JSON(entry) } -> std::same_as<foundation::JSON>;
  { json.get<Entry>() } -> std::same_as<Entry>;
};

/// Answers the three requests of the host for one kind of widget; holds nothing between them.
template <class Provider>
concept TimelineProvider =
    TimelineEntry<typename Provider::Entry> && requires(const Provider& provider, const uikit::Platform& platform) {
      /// Shown at once, before anything else is known.
      { provider.placeholder(platform) } -> std::same_as<typename Provider::Entry>;
      /// Shown in the gallery and in passing.
      { provider.snapshot(platform) } -> std::same_as<typename Provider::Entry>;
      { provider.timeline(platform) } -> std::same_as<Timeline<typename Provider::Entry>>;
    };

}  // namespace widgetkit
