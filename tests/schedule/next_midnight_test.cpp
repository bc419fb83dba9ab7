#include "schedule/next_midnight.hpp"

#include <gtest/gtest.h>

#include "schedule/virtual_host.hpp"

namespace host {
namespace {

TEST(NextMidnight, IsWhereTheNextDayBegins) {
  struct Case {
    const char* zone;
    const char* moment;
    const char* midnight;
  };
  const Case cases[] = {
      {"Europe/Berlin", "2026-11-20T23:00:00Z", "2026-11-21T23:00:00Z"},        // at midnight: the next one
      {"Europe/Berlin", "2026-11-21T22:59:59.999Z", "2026-11-21T23:00:00Z"},    // a moment before
      {"Europe/Berlin", "2026-03-28T23:00:00Z", "2026-03-29T22:00:00Z"},        // a day of 23 hours
      {"Europe/Berlin", "2026-10-24T22:00:00Z", "2026-10-25T23:00:00Z"},        // a day of 25 hours
      {"Africa/Cairo", "2026-04-23T12:00:00Z", "2026-04-23T22:00:00Z"},         // the day begins at 01:00
      {"America/Havana", "2026-10-31T16:00:00Z", "2026-11-01T04:00:00Z"},       // the first of two midnights
      {"America/Havana", "2026-11-01T05:30:00Z", "2026-11-02T05:00:00Z"},       // after the second
      {"Australia/Lord_Howe", "2026-04-04T16:00:00Z", "2026-04-05T13:30:00Z"},  // half an hour longer
      {"America/St_Johns", "2010-11-07T03:00:00Z", "2010-11-08T03:30:00Z"},     // 23:30 again, after the 7th began
      {"Pacific/Apia", "2011-12-29T12:00:00Z", "2011-12-30T10:00:00Z"},         // the 30th was left out
  };
  for (const auto& [zone, text, midnight] : cases) {
    EXPECT_EQ(nextMidnight(calendarIn(zone), moment(text)), moment(midnight)) << zone << " " << text;
  }
}

TEST(NextMidnight, LiesAheadAtTheEndOfAllDatesToo) {
  for (const auto before : {std::chrono::hours(72), std::chrono::hours(1)}) {
    const auto late = foundation::Date::max() - before;
    EXPECT_GT(nextMidnight(calendarIn("Europe/Berlin"), late), late);
  }
}

}  // namespace
}  // namespace host
