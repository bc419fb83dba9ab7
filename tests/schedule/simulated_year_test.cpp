#include <gtest/gtest.h>

#include "foundation/iso8601.hpp"
#include "schedule/fake_widgets.hpp"

namespace host {
namespace {

using foundation::Calendar;
using foundation::Date;
using std::chrono::hours;

/// A year in a zone, from 10:00 on its first day.
struct Year {
  const char* zone;
  const char* start;
  const char* end;
  int midnights;  ///< after the start and before the end
  int longDays;   ///< of more than 24 hours
};

const Year years[] = {
    {"UTC", "2026-01-01T10:00:00Z", "2027-01-01T00:00:00Z", 364, 0},
    {"Europe/Berlin", "2026-01-01T09:00:00Z", "2026-12-31T23:00:00Z", 364, 1},
    {"America/New_York", "2026-01-01T15:00:00Z", "2027-01-01T05:00:00Z", 364, 1},
    {"Africa/Cairo", "2026-01-01T08:00:00Z", "2026-12-31T22:00:00Z", 364, 1},
    {"Australia/Lord_Howe", "2025-12-31T23:00:00Z", "2026-12-31T13:00:00Z", 364, 1},
    {"America/Havana", "2026-01-01T15:00:00Z", "2027-01-01T05:00:00Z", 364, 1},
    {"Pacific/Apia", "2011-01-01T20:00:00Z", "2011-12-31T10:00:00Z", 363, 1},
};

bool isToday(const Calendar& calendar, Date shown, Date now) {
  return calendar.startOfDay(shown) == calendar.startOfDay(now);
}

/// The mood widget counts 86,400 seconds for every day, so after one of 23 hours it is behind for an hour.
bool isTodayOrADayLong(const Calendar& calendar, Date shown, Date now) {
  return isToday(calendar, shown, now) || now < calendar.startOfDay(shown) + hours(24);
}

TEST(SimulatedYear, ShowsTodayAndAsksNoMoreThanTheWidgetsWant) {
  struct Widget {
    const char* name;
    FakeWidget widget;
    bool (*isRight)(const Calendar& calendar, Date shown, Date now);
    std::function<int(const Year&)> requests;
    int changesADay;
  };
  const Widget widgets[] = {
      {"tasks", dailyWidget(15), isToday, [](const Year&) { return 27; }, 1},      // every 14 days
      {"events", eventsWidget(), isToday, [](const Year&) { return 1 + 26; }, 9},  // every 14 days, at the last event
      {"mood", moodWidget(), isTodayOrADayLong,                                    // every day, and at 23:00 on one
       [](const Year& year) { return 1 + year.midnights + year.longDays; }, 0},    // of 25 hours
  };
  for (const Year& year : years) {
    for (const auto& [name, widget, isRight, requests, changesADay] : widgets) {
      SCOPED_TRACE(std::string(name) + " in " + year.zone);
      VirtualHost host(widget, calendarIn(year.zone), moment(year.start));
      host.step = std::chrono::minutes(7);
      host.look = [&](Date now, Date shown) {
        ASSERT_TRUE(isRight(host.calendar(), shown, now)) << foundation::formatMoment(now);
      };
      host.runUntil(moment(year.end));
      EXPECT_EQ(host.sent().size(), requests(year));
      EXPECT_LE(host.changes(), (year.midnights + 1) * changesADay);
      EXPECT_GE(host.changes(), (year.midnights - 1) * changesADay);
      EXPECT_LE(host.wakes(), host.changes() + requests(year)) << "for nothing else";
      if (HasFailure()) return;
    }
  }
}

}  // namespace
}  // namespace host
