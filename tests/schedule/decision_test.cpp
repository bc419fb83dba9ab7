#include "schedule/decision.hpp"

#include <gtest/gtest.h>

#include <string>

#include "foundation/iso8601.hpp"
#include "schedule/virtual_host.hpp"

namespace host {
namespace {

using foundation::Date;

/// A moment of one day.
Date at(std::string_view time) {
  return moment("2026-11-21T" + std::string(time) + "Z");
}

const Date midnight = moment("2026-11-22T00:00:00Z");

/// An answer that was asked for at 10:00.
TimelineState stateOf(ReloadPolicy policy, std::vector<Date> dates) {
  return answered({}, {.dates = EntryDates(dates), .policy = policy, .asked = at("10:00:00"), .midnight = midnight});
}

/// "at 12:00:00 (end of the timeline)"
std::string text(const std::optional<NextRequest>& request) {
  if (!request) return "none";
  return foundation::formatMoment(request->at).substr(11) + " (" + std::string(textOf(request->reason)) + ")";
}

TEST(Decision, AsksWhenThePolicySaysSo) {
  struct Case {
    const char* name;
    TimelineState state;
    const char* request;
    const char* asksFrom;  ///< nothing the millisecond before
  };
  const Case cases[] = {
      {"at the last entry's date", stateOf(AtEnd{}, {at("09:00:00"), at("12:00:00"), at("11:00:00")}),
       "12:00:00Z (end of the timeline)", "12:00:00"},
      {"at a date named, with entries left", stateOf(After{at("11:30:00")}, {at("09:00:00"), at("12:00:00")}),
       "11:30:00Z (date named by the widget)", "11:30:00"},
      {"at a date named, long after the last entry", stateOf(After{at("23:00:00")}, {at("09:00:00")}),
       "23:00:00Z (date named by the widget)", "23:00:00"},
      {"a millisecond after it was asked for", stateOf(After{at("10:00:00.001")}, {}),
       "10:00:00.001Z (date named by the widget)", "10:00:00.001"},
      {"at midnight where only now was told", stateOf(AtEnd{}, {at("10:00:00")}), "00:00:00Z (next midnight)", nullptr},
      {"at midnight where all is past", stateOf(AtEnd{}, {at("08:00:00"), at("09:00:00")}), "00:00:00Z (next midnight)",
       nullptr},
      {"at midnight where nothing was told", stateOf(AtEnd{}, {}), "00:00:00Z (next midnight)", nullptr},
      {"at midnight where now is named", stateOf(After{at("10:00:00")}, {at("11:00:00")}), "00:00:00Z (next midnight)",
       nullptr},
      {"at midnight where the past is named", stateOf(After{at("01:00:00")}, {}), "00:00:00Z (next midnight)", nullptr},
      {"never", stateOf(Never{}, {at("09:00:00"), at("12:00:00")}), "none", nullptr},
  };
  for (const auto& [name, state, request, asksFrom] : cases) {
    EXPECT_EQ(text(decide(state, at("10:00:00")).nextRequest), request) << name;
    const Date due = asksFrom ? at(asksFrom) : midnight;
    EXPECT_FALSE(decide(state, due - std::chrono::milliseconds(1)).asksNow) << name;
    EXPECT_EQ(decide(state, due).asksNow, state.due.has_value()) << name;
    EXPECT_EQ(decide(state, due + std::chrono::days(1000)).asksNow, state.due.has_value()) << name;
  }
}

TEST(Decision, AsksAtOnceForWhatHappensOutside) {
  struct Case {
    OutsideEvent event;
    const char* request;
  };
  const Case cases[] = {{OutsideEvent::tap, "10:30:00Z (tap)"},
                        {OutsideEvent::files, "10:30:00Z (changed files)"},
                        {OutsideEvent::timeZone, "10:30:00Z (changed time zone)"}};
  const Date now = at("10:30:00");
  for (const auto& [event, request] : cases) {
    const auto state = happened(happened(stateOf(Never{}, {at("09:00:00")}), event), OutsideEvent::tap);
    EXPECT_EQ(text(decide(state, now).nextRequest), request);
    EXPECT_TRUE(decide(state, now).asksNow);
    EXPECT_FALSE(decide(state, now).wake) << "asking is not waking";
    const auto sent = requestSent(state, now);
    EXPECT_FALSE(decide(answered(sent, {.asked = now}), now).asksNow) << "once";
    EXPECT_TRUE(decide(answered(happened(sent, event), {.asked = now}), now).asksNow)
        << "again while it was on its way";
  }
}

TEST(Decision, AsksForTheFirstTimeAndGoesOnShowingWhereItFails) {
  const Date now = at("10:30:00");
  const auto first = happened({}, OutsideEvent::files);
  EXPECT_EQ(text(decide(first, now).nextRequest), "10:30:00Z (first request)");
  EXPECT_EQ(text(decide(failed(requestSent(first, now), now), now).nextRequest), "10:30:01Z (retry after a failure)");

  const auto state = stateOf(AtEnd{}, {at("09:00:00"), at("10:30:02"), at("10:30:00")});
  const auto decision = decide(failed(requestSent(state, now), now), now);
  EXPECT_EQ(decision.shown, ShownEntry{2});
  EXPECT_EQ(decision.nextChange, at("10:30:02"));
  EXPECT_EQ(decision.wake, at("10:30:01"));
}

TEST(Decision, WakesForTheNextChangeOrRequestWhicheverComesFirst) {
  struct Case {
    const char* name;
    TimelineState state;
    std::optional<Date> wake;
  };
  const auto daily = stateOf(AtEnd{}, {at("09:00:00"), at("11:00:00"), at("12:00:00")});
  const Case cases[] = {
      {"a change", daily, at("11:00:00")},
      {"a request", stateOf(After{at("10:45:00")}, {at("11:00:00")}), at("10:45:00")},
      {"both at once", stateOf(AtEnd{}, {at("11:00:00")}), at("11:00:00")},
      {"the early one's own date", stateOf(Never{}, {at("11:00:00")}), at("11:00:00")},
      {"a change while a request is on its way", requestSent(daily, at("10:29:00")), at("11:00:00")},
      {"neither", stateOf(Never{}, {at("09:00:00")}), std::nullopt},
      {"nothing known: it asks", {}, std::nullopt},
  };
  std::vector<Decision> decisions;
  for (const auto& [name, state, wake] : cases) {
    decisions.push_back(decide(state, at("10:30:00")));
    EXPECT_EQ(decisions.back().wake, wake) << name;
  }
  EXPECT_EQ(earliestWake(decisions), at("10:45:00"));
  EXPECT_EQ(earliestWake(std::span(decisions).last(2)), std::nullopt);
  EXPECT_EQ(earliestWake({}), std::nullopt);
}

}  // namespace
}  // namespace host
