#include "foundation/date_formatter.hpp"

#include <gtest/gtest.h>

#include "foundation/iso8601.hpp"
#include "foundation/strings.hpp"
#include "support/recorded_cases.hpp"

namespace foundation {
namespace {

Calendar calendarIn(const std::string& zone, const std::string& locale) {
  return Calendar(Locale::named(locale).value(), TimeZone::named(zone).value());
}

TEST(DateFormatter, WritesAsRecorded) {
  int compared = 0;
  for (const auto& row : support::recordedCases("platform/calendar.json")) {
    const auto locale = row["locale"].get<std::string>();
    SCOPED_TRACE(row["at"].get<std::string>() + " " + row["timezone"].get<std::string>() + " " + locale);
    const Calendar calendar = calendarIn(row["timezone"], locale);
    const Date date = parseMoment(row["at"].get<std::string>()).value();
    EXPECT_EQ(uppercased(DateFormatter(calendar, "LLLL").string(date)), row["month"].get<std::string>());
    EXPECT_EQ(uppercased(DateFormatter(calendar, "LLLL yyyy").string(date)), row["monthYear"].get<std::string>());
    if (support::hasOtherShortTimes(locale)) continue;
    EXPECT_EQ(DateFormatter::shortTime(calendar).string(date), row["shortTime"].get<std::string>());
    ++compared;
  }
  EXPECT_GT(compared, 100);
}

TEST(DateFormatter, WritesWhatTheClocksOfTheZoneShow) {
  const struct {
    const char* zone;
    const char* locale;
    const char* at;
    const char* time;
  } rows[] = {
      // Egypt has summer time again since 2023: later than the zone rules that ICU carries.
      {"Africa/Cairo", "en_GB", "2024-05-17T09:00:00Z", "12:00"},
      {"America/Mexico_City", "en_GB", "2024-05-17T18:00:00Z", "12:00"},
      {"Asia/Kathmandu", "ne_NP", "2024-05-17T03:20:00Z", "०९:०५"},
  };
  for (const auto& row : rows) {
    const Calendar calendar = calendarIn(row.zone, row.locale);
    EXPECT_EQ(DateFormatter::shortTime(calendar).string(parseMoment(row.at).value()), row.time)
        << row.zone << " " << row.locale;
  }
}

TEST(DateFormatter, WritesWeekdayAndDayInTheOrderOfTheLocale) {
  const struct {
    const char* locale;
    const char* day;
  } rows[] = {
      {"en_US", "Saturday, November 21"}, {"en_GB", "Saturday, 21 November"}, {"de_DE", "Samstag, 21. November"},
      {"ru_RU", "суббота, 21 ноября"},    {"ja_JP", "11月21日土曜日"},
  };
  for (const auto& row : rows) {
    const auto formatter = DateFormatter::weekdayAndDay(calendarIn("Asia/Tokyo", row.locale));
    EXPECT_EQ(formatter.string(parseMoment("2026-11-20T16:00:00Z").value()), row.day) << row.locale;
  }
}

}  // namespace
}  // namespace foundation
