#pragma once

#include <optional>

#include "schedule/entry_dates.hpp"
#include "schedule/reload_policy.hpp"
#include "schedule/request_reason.hpp"

// What the host knows of one kind's timeline, and how each thing that happens changes that. All moments are of the wall
// clock, which may be put back and forth; nothing here reads it. The host goes about it like this, whatever woke it:
//
//   state = clockRead(std::move(state), now, nextMidnight(calendar, now));
//   const Decision decision = decide(state, now);
//   if (decision.asksNow) state = requestSent(std::move(state), now);   // and sends it, with `now` as its moment
//   …
//   state = answered(std::move(state), {…});   or   state = failed(std::move(state), now);   then decides again

namespace host {

struct NextRequest {
  foundation::Date at = {};
  RequestReason reason = RequestReason::first;
  friend bool operator==(const NextRequest&, const NextRequest&) = default;
};

/// Requests that failed one after the other.
struct Failures {
  int count = 1;
  foundation::Date last = {};  ///< when the last of them failed
  friend bool operator==(const Failures&, const Failures&) = default;
};

/// Something that asks for a timeline at once, and once.
enum class OutsideEvent { tap, files, timeZone };

struct TimelineState {
  EntryDates dates = {};                                  ///< of the last answer
  std::optional<foundation::Date> asked = std::nullopt;   ///< when that was asked for; absent before the first answer
  std::optional<NextRequest> due = std::nullopt;          ///< by that answer's policy; absent for never
  std::optional<Failures> failures = std::nullopt;        ///< since that answer
  std::optional<OutsideEvent> outside = std::nullopt;     ///< the first of what happened since the last request
  std::optional<foundation::Date> asking = std::nullopt;  ///< when the request was sent that is on its way
};

/// A request is on its way. What happened outside before is in what it will be answered.
TimelineState requestSent(TimelineState state, foundation::Date now);

/// What came of a request, or was kept of one from an earlier run of the host.
struct Answer {
  EntryDates dates = {};
  ReloadPolicy policy = Never{};
  foundation::Date asked = {};     ///< the moment that the request carried
  foundation::Date midnight = {};  ///< nextMidnight of `asked`
};

/// Sets when the next request is due: at the last entry's date, or at the date that the widget names. An answer that
/// would be due again at or before the moment for which it was asked (its entries all lie in the past, say) is due at
/// the midnight after that moment, or asking would never end.
TimelineState answered(TimelineState state, Answer answer);

/// The request came to nothing. What was shown stays.
TimelineState failed(TimelineState state, foundation::Date now);

TimelineState happened(TimelineState state, OutsideEvent event);

/// To be told before each decision. Notices that the clock was put back behind the moments that the state holds: then
/// the next request is due at `nextMidnight` at the latest, not when a clock that was wrong would have had it.
TimelineState clockRead(TimelineState state, foundation::Date now, foundation::Date nextMidnight);

}  // namespace host
