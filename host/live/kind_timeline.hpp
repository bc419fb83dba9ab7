#pragma once

#include <optional>
#include <string>

#include "host/live/shown_widget.hpp"
#include "messages/replies.hpp"
#include "schedule/decision.hpp"

namespace host {

/// What is known of one kind: its widgets, whatever their family, show the same timeline.
struct KindTimeline {
  TimelineState state = {};
  Decision decision = {};
  messages::Timeline timeline = {};  ///< of the last answer; the placeholder where that had no entries
  std::uint64_t number = 0;          ///< of that answer; 0 before the first
  std::optional<foundation::Date> lastRequest = std::nullopt;
  std::optional<WidgetFailure> lastFailure = std::nullopt;  ///< stays when it is over
};

}  // namespace host
