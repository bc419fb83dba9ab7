#pragma once

#include <optional>
#include <span>

#include "schedule/timeline_state.hpp"

namespace host {

/// What to do about one kind's widgets now.
struct Decision {
  std::optional<ShownEntry> shown = std::nullopt;             ///< absent: what was shown before stays
  std::optional<foundation::Date> nextChange = std::nullopt;  ///< when the date of an entry comes; after now
  std::optional<NextRequest> nextRequest = std::nullopt;      ///< absent while one is on its way, and for never
  bool asksNow = false;                                       ///< nextRequest is due
  std::optional<foundation::Date> wake = std::nullopt;        ///< when to decide again by itself; after now
  friend bool operator==(const Decision&, const Decision&) = default;
};

/// What follows from what is known, at a moment of the wall clock. Takes logarithmic time in the number of entries.
///
/// A widget is asked for what its policy asks for and once for each thing that happens outside. After a failure it is
/// asked again 1 s later, after the next 2 s, 4 s … up to 15 minutes, policy or not; what happens outside asks at once
/// then, too, without making the pauses shorter.
Decision decide(const TimelineState& state, foundation::Date now);

/// When the host has to wake for the first of these; nothing: it sleeps until something happens.
std::optional<foundation::Date> earliestWake(std::span<const Decision> decisions);

}  // namespace host
