#include <gtest/gtest.h>

#include "foundation/calendar.hpp"
#include "foundation/iso8601.hpp"
#include "support/recorded_cases.hpp"

namespace foundation {
namespace {

Date moment(std::string_view text) {
  return parseMoment(text).value();
}

Calendar calendarIn(const std::string& zone, const std::string& locale = "en_US") {
  return Calendar(Locale::named(locale).value(), TimeZone::named(zone).value());
}

std::string textOf(const std::optional<DateInterval>& interval) {
  return interval ? formatMoment(interval->start) + " to " + formatMoment(interval->end) : "nothing";
}

TEST(CalendarSymbols, AreAsRecorded) {
  for (const auto& row : support::recordedCases("platform/calendar.json")) {
    const auto locale = row["locale"].get<std::string>();
    const Calendar calendar = calendarIn(row["timezone"], locale);
    if (!support::hasOtherWeekdayLetters(locale)) {
      EXPECT_EQ(calendar.veryShortWeekdaySymbols(), (row["veryShortWeekdaySymbols"].get<std::array<std::string, 7>>()))
          << locale;
    }
    if (!support::hasOtherFirstWeekday(locale)) {
      EXPECT_EQ(calendar.firstWeekday(), row["firstWeekday"].get<int>()) << locale;
    }
    EXPECT_EQ(formatMoment(calendar.dateInterval(CalendarPeriod::month, moment(row["at"].get<std::string>()))->start),
              row["monthStart"].get<std::string>())
        << locale << " " << row["at"];
  }
}

TEST(CalendarIntervals, BeginAndEndWithTheFirstInstantsOfDays) {
  const struct {
    const char* name;
    const char* zone;
    const char* locale;
    CalendarPeriod period;
    const char* at;
    const char* interval;
  } rows[] = {
      {"a month of 743 hours", "America/New_York", "en_US", CalendarPeriod::month, "2024-03-31T12:00:00Z",
       "2024-03-01T05:00:00Z to 2024-04-01T04:00:00Z"},
      {"the first of the month without midnight", "Asia/Amman", "en_US", CalendarPeriod::month, "2016-04-20T12:00:00Z",
       "2016-03-31T22:00:00Z to 2016-04-30T21:00:00Z"},
      {"Persian month", "UTC", "fa_IR", CalendarPeriod::month, "2024-05-17T12:00:00Z",
       "2024-04-20T00:00:00Z to 2024-05-21T00:00:00Z"},
      {"a week from Saturday", "UTC", "ar_EG", CalendarPeriod::weekOfYear, "2024-05-18T00:00:00Z",
       "2024-05-18T00:00:00Z to 2024-05-25T00:00:00Z"},
      {"a week that begins without midnight", "Asia/Beirut", "en_US", CalendarPeriod::weekOfYear,
       "2024-04-01T12:00:00Z", "2024-03-30T22:00:00Z to 2024-04-06T21:00:00Z"},
      {"before 1970", "UTC", "en_US", CalendarPeriod::weekOfYear, "1969-12-31T23:59:59Z",
       "1969-12-28T00:00:00Z to 1970-01-04T00:00:00Z"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(textOf(calendarIn(row.zone, row.locale).dateInterval(row.period, moment(row.at))), row.interval)
        << row.name;
  }
}

TEST(CalendarEnumeration, GivesOneDateADay) {
  const struct {
    const char* name;
    const char* zone;
    const char* after;
    MatchingComponents matching;
    std::vector<std::string> dates;
  } rows[] = {
      {"a midnight that does not exist moves on by an hour",
       "Africa/Cairo",
       "2024-04-24T22:00:00Z",
       {},
       {"2024-04-25T22:00:00Z", "2024-04-26T21:00:00Z", "2024-04-27T21:00:00Z"}},
      {"a repeated midnight is given once",
       "America/Havana",
       "2024-11-02T04:00:00Z",
       {},
       {"2024-11-03T04:00:00Z", "2024-11-04T05:00:00Z", "2024-11-05T05:00:00Z"}},
      {"from within a day that began late",
       "Africa/Cairo",
       "2024-04-25T22:00:00Z",
       {},
       {"2024-04-26T21:00:00Z", "2024-04-27T21:00:00Z", "2024-04-28T21:00:00Z"}},
      {"a time that a short gap skips is the next day's, once",
       "Australia/Lord_Howe",
       "2024-10-04T20:00:00Z",
       {.hour = 2, .minute = 15},
       {"2024-10-06T15:15:00Z", "2024-10-07T15:15:00Z", "2024-10-08T15:15:00Z"}},
      {"no time of day", "UTC", "2024-05-17T00:00:00Z", {.hour = 24}, {}},
  };
  for (const auto& row : rows) {
    std::vector<std::string> dates;
    calendarIn(row.zone).enumerateDates(moment(row.after), row.matching, [&](Date date) {
      dates.push_back(formatMoment(date));
      return dates.size() < 3;
    });
    EXPECT_EQ(dates, row.dates) << row.name;
  }
}

}  // namespace
}  // namespace foundation
