#include <gtest/gtest.h>

#include <random>

#include "foundation/iso8601.hpp"
#include "schedule/fake_widgets.hpp"
#include "schedule/next_midnight.hpp"

namespace host {
namespace {

using foundation::Date;
using std::chrono::days;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

const Date start = moment("2026-11-21T10:00:00Z");

/// Of the tasks widget, which was asked at the start and is due 14 days later at midnight, that is at 23:00 in UTC.
VirtualHost tasksHost() {
  VirtualHost host(dailyWidget(15), calendarIn("Europe/Berlin"), start);
  host.runFor(hours(1));
  return host;
}

TEST(UnsteadyClock, AsksOnceHoweverFarItIsPutForth) {
  for (const auto step : {days(15), days(400), days(20000)}) {
    auto host = tasksHost();
    host.setClock(start + step);
    host.runFor(days(13));
    ASSERT_EQ(host.sent().size(), 2) << step.count();
    EXPECT_EQ(host.sent().back(), (Sent{.at = start + step, .reason = RequestReason::endReached}));
  }
}

TEST(UnsteadyClock, AsksAtTheNextMidnightWhenItWasPutBackFar) {
  struct Case {
    const char* name;
    std::chrono::milliseconds step;
    const char* next;  ///< the moment of the second request
    RequestReason reason;
  };
  using enum RequestReason;
  const Case cases[] = {
      {"a year", -days(365), "2025-11-21T23:00:00Z", nextMidnight},
      {"half a day", -hours(11), "2026-11-21T23:00:00Z", nextMidnight},  // asked for in the future
      {"half an hour, behind nothing", -minutes(30), "2026-12-04T23:00:00Z", endReached},
      {"a minute before it was asked for, as happens", -minutes(61), "2026-12-04T23:00:00Z", endReached},
      {"two minutes before it was asked for", -minutes(62), "2026-11-21T23:00:00Z", nextMidnight},
  };
  for (const auto& [name, step, next, reason] : cases) {
    auto host = tasksHost();
    host.setClock(host.now() + step);
    EXPECT_EQ(host.sent().size(), 1) << name << ": not at once";
    host.runUntil(moment(next) + hours(1));
    ASSERT_EQ(host.sent().size(), 2) << name;
    EXPECT_EQ(host.sent().back(), (Sent{.at = moment(next), .reason = reason})) << name;
  }
}

TEST(UnsteadyClock, LeavesWhatIsDueBeforeMidnightWhenItWasPutBack) {
  VirtualHost host(
      [](Date now, const foundation::Calendar&) {
        return FakeTimeline{.dates = {now}, .policy = After{.date = now + minutes(20)}};
      },
      calendarIn("UTC"), start);
  host.runFor(minutes(5));
  host.setClock(start - minutes(10));
  host.runUntil(start + minutes(21));
  EXPECT_EQ(host.sent().back(), (Sent{.at = start + minutes(20), .reason = RequestReason::dateNamed}));
  EXPECT_EQ(host.sent().size(), 2);
}

TEST(UnsteadyClock, AnotherZoneAsksOnceAndHasItsOwnMidnights) {
  auto host = tasksHost();
  host.moveTo(calendarIn("Pacific/Auckland"));  // 00:00 on the 22nd there
  host.runFor(minutes(1));
  host.look = [&](Date now, Date shown) { ASSERT_EQ(shown, host.calendar().startOfDay(now)); };
  host.runFor(days(10));
  ASSERT_EQ(host.sent().size(), 2);
  EXPECT_EQ(host.sent().back().reason, RequestReason::timeZone);

  host.moveTo(calendarIn("America/Los_Angeles"));
  host.happen(OutsideEvent::files);  // while the request is on its way
  host.runFor(days(10));
  EXPECT_EQ(host.sent().size(), 4);
}

/// Random days of a machine on which everything moves.
struct Adventure {
  explicit Adventure(unsigned seed, FakeWidget widget)
      : random(seed), host(std::move(widget), calendarIn("UTC"), start) {
    host.step = minutes(7);
  }

  long number(long from, long to) { return std::uniform_int_distribution<long>(from, to)(random); }

  void live() {
    const auto run = seconds(number(1, 3 * 86400));
    host.runFor(run);
    lived += run;
    switch (number(0, 6)) {
      case 0:
        return host.setClock(host.now() + seconds(number(-400L * 86400, 400L * 86400))), void(++steps);
      case 1:
        return host.setClock(host.now() + seconds(number(-7200, 7200))), void(++steps);
      case 2:
        return host.setClock(host.now() + std::chrono::milliseconds(number(-2000, 2000))), void(++steps);
      case 3:
        return host.setClock(host.now() + seconds(number(0, 36 * 3600))), void(++steps);  // sleep
      case 4:
        return host.happen(OutsideEvent::tap), void(++events);
      case 5: {
        const char* const zones[] = {"Europe/Berlin", "America/Havana", "Africa/Cairo", "Australia/Lord_Howe", "UTC"};
        return host.moveTo(calendarIn(zones[number(0, 4)])), void(++events);
      }
      default:
        return host.happen(OutsideEvent::files), void(++events);
    }
  }

  std::mt19937 random;
  VirtualHost host;
  std::chrono::milliseconds lived = {};
  int steps = 0;
  int events = 0;
};

TEST(UnsteadyClock, NeverMakesItAskInCirclesNorShowAnotherDayForLong) {
  struct Widget {
    const char* name;
    FakeWidget widget;
    std::chrono::milliseconds period;  ///< no two requests by the policy alone are closer
  };
  const Widget widgets[] = {
      {"tasks", dailyWidget(15), days(13)},
      {"events", eventsWidget(), days(13)},
      {"mood", moodWidget(), hours(12)},  // twice on a day of 25 hours
  };
  for (const auto& [name, widget, period] : widgets) {
    for (unsigned seed = 0; seed < 60; ++seed) {
      SCOPED_TRACE(std::string(name) + ", seed " + std::to_string(seed));
      Adventure adventure(seed, widget);
      for (int k = 0; k < 30 && !HasFailure(); ++k) adventure.live();
      VirtualHost& host = adventure.host;
      // Each request is the first, or for an event, or comes of a step of the clock since the one before, or is due.
      EXPECT_LE(host.sent().size(), 1 + adventure.events + adventure.steps + adventure.lived / period);

      // From the next midnight on all is as if nothing had been.
      host.runUntil(nextMidnight(host.calendar(), host.now()) + minutes(1));
      host.look = [&](Date now, Date shown) {
        const auto day = host.calendar().startOfDay(shown);
        const bool isLagging = std::string_view(name) == "mood" && now < day + hours(24);
        ASSERT_TRUE(day == host.calendar().startOfDay(now) || isLagging) << foundation::formatMoment(now);
      };
      host.runFor(days(20));
      if (HasFailure()) return;
    }
  }
}

}  // namespace
}  // namespace host
