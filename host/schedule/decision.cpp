#include "schedule/decision.hpp"

#include "schedule/retry_pause.hpp"

namespace host {

namespace {

using foundation::Date;

RequestReason reasonOf(OutsideEvent event) {
  switch (event) {
    case OutsideEvent::tap:
      return RequestReason::tap;
    case OutsideEvent::files:
      return RequestReason::files;
    case OutsideEvent::timeZone:
      return RequestReason::timeZone;
  }
  __builtin_unreachable();
}

std::optional<NextRequest> nextRequest(const TimelineState& state, Date now) {
  if (state.asking) return std::nullopt;
  if (!state.asked && !state.failures) return NextRequest{.at = now, .reason = RequestReason::first};
  if (state.outside) return NextRequest{.at = now, .reason = reasonOf(*state.outside)};
  if (state.failures) {
    return NextRequest{.at = state.failures->last + retryPause(state.failures->count), .reason = RequestReason::retry};
  }
  return state.due;
}

std::optional<Date> earlier(std::optional<Date> a, std::optional<Date> b) {
  return a && b ? std::min(a, b) : a ? a : b;
}

}  // namespace

Decision decide(const TimelineState& state, Date now) {
  Decision decision{
      .shown = state.dates.shown(now), .nextChange = state.dates.next(now), .nextRequest = nextRequest(state, now)};
  decision.asksNow = decision.nextRequest && decision.nextRequest->at <= now;
  decision.wake = decision.nextChange;
  if (decision.nextRequest && !decision.asksNow) decision.wake = earlier(decision.wake, decision.nextRequest->at);
  return decision;
}

std::optional<Date> earliestWake(std::span<const Decision> decisions) {
  std::optional<Date> wake;
  for (const Decision& decision : decisions) wake = earlier(wake, decision.wake);
  return wake;
}

}  // namespace host
