#include <gtest/gtest.h>

#include "foundation/calendar.hpp"
#include "foundation/iso8601.hpp"
#include "support/recorded_cases.hpp"

namespace {

std::string setting(const std::string& timeZone, int hour, int minute, int second, const std::string& of) {
  const foundation::Calendar calendar({}, *foundation::TimeZone::named(timeZone));
  const auto date = calendar.dateBySettingHour(hour, minute, second, *foundation::parseMoment(of));
  return date ? foundation::formatMoment(*date) : "nothing";
}

TEST(CalendarSetting, AnswersAsRecorded) {
  for (const auto& each : support::recordedCases("platform/calendar.json")) {
    for (const auto& row : each["setting"]) {
      EXPECT_EQ(setting(each["timezone"], row[0], row[1], 0, each["at"]), row[2])
          << row[0] << ":" << row[1] << " at " << each["at"] << " in " << each["timezone"];
    }
  }
}

TEST(CalendarSetting, AroundClockChanges) {
  struct Case {
    const char* name;
    const char* timeZone;
    int hour, minute, second;
    const char* of;
    const char* result;
  };
  const Case cases[] = {
      {"a skipped time gives the end of the gap", "America/New_York", 2, 30, 15, "2024-03-10T20:00:00Z",
       "2024-03-10T07:00:00Z"},
      {"skipped midnight gives the start of the day", "America/Sao_Paulo", 0, 30, 0, "2018-11-04T20:00:00Z",
       "2018-11-04T03:00:00Z"},
      {"a gap of half an hour gives the next day", "Australia/Lord_Howe", 2, 15, 0, "2024-10-06T01:00:00Z",
       "2024-10-06T15:15:00Z"},
      {"the end of that gap is there", "Australia/Lord_Howe", 2, 30, 0, "2024-10-06T01:00:00Z", "2024-10-05T15:30:00Z"},
      {"of a repeated time the first is taken", "America/New_York", 1, 30, 0, "2024-11-03T20:00:00Z",
       "2024-11-03T05:30:00Z"},
      {"of a repeated midnight too", "America/Havana", 0, 0, 0, "2024-11-03T20:00:00Z", "2024-11-03T04:00:00Z"},
      {"a time earlier than the moment stays on its day", "UTC", 6, 0, 0, "2024-05-17T20:00:00.250Z",
       "2024-05-17T06:00:00Z"},
      {"before 1970", "UTC", 6, 0, 1, "1969-12-31T23:59:59.999Z", "1969-12-31T06:00:01Z"},
      {"hour 24", "UTC", 24, 0, 0, "2024-05-17T20:00:00Z", "nothing"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(setting(each.timeZone, each.hour, each.minute, each.second, each.of), each.result) << each.name;
  }
}

}  // namespace
