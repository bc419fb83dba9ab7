#include "schedule/timeline_state.hpp"

#include <algorithm>
#include <utility>

namespace host {

namespace {

using foundation::Date;

/// By so much a clock is put right now and then; what is due hardly moves.
constexpr std::chrono::minutes smallStep(1);

std::optional<NextRequest> dueBy(const Answer& answer) {
  struct Rule {
    const Answer& answer;
    std::optional<NextRequest> operator()(Never) const { return std::nullopt; }
    std::optional<NextRequest> operator()(AtEnd) const {
      return NextRequest{.at = answer.dates.last().value_or(answer.asked), .reason = RequestReason::endReached};
    }
    std::optional<NextRequest> operator()(After after) const {
      return NextRequest{.at = after.date, .reason = RequestReason::dateNamed};
    }
  };
  const auto due = std::visit(Rule{answer}, answer.policy);
  if (!due || due->at > answer.asked) return due;
  return NextRequest{.at = answer.midnight, .reason = RequestReason::nextMidnight};
}

}  // namespace

TimelineState requestSent(TimelineState state, Date now) {
  state.asking = now;
  state.outside.reset();
  return state;
}

TimelineState answered(TimelineState state, Answer answer) {
  state.asking.reset();
  state.failures.reset();
  state.due = dueBy(answer);
  state.asked = answer.asked;
  state.dates = std::move(answer.dates);
  return state;
}

TimelineState failed(TimelineState state, Date now) {
  state.asking.reset();
  state.failures = Failures{.count = state.failures ? state.failures->count + 1 : 1, .last = now};
  return state;
}

TimelineState happened(TimelineState state, OutsideEvent event) {
  if (!state.outside) state.outside = event;
  return state;
}

TimelineState clockRead(TimelineState state, Date now, Date nextMidnight) {
  const bool wasPutBack = state.asked && *state.asked - now > smallStep;
  if (wasPutBack && state.due && state.due->at > nextMidnight) {
    state.due = NextRequest{.at = nextMidnight, .reason = RequestReason::nextMidnight};
  }
  if (state.failures) state.failures->last = std::min(state.failures->last, now);
  return state;
}

}  // namespace host
