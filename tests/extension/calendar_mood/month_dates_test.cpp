#include "calendar_mood/month_dates.hpp"

#include <gtest/gtest.h>

#include "planner.hpp"
#include "support/recorded_cases.hpp"

namespace mirune {
namespace {

std::vector<std::string> textsOf(const std::vector<foundation::Date>& dates) {
  std::vector<std::string> texts;
  for (const foundation::Date date : dates) texts.push_back(foundation::formatMoment(date));
  return texts;
}

TEST(MonthDates, AreAsRecorded) {
  for (const auto& row : support::recordedCases("platform/calendar.json")) {
    const auto locale = row["locale"].get<std::string>();
    if (support::hasOtherFirstWeekday(locale)) continue;
    SCOPED_TRACE(row["at"].get<std::string>() + " " + row["timezone"].get<std::string>() + " " + locale);
    const foundation::Calendar calendar(foundation::Locale::named(locale).value(),
                                        foundation::TimeZone::named(row["timezone"].get<std::string>()).value());
    const auto anchors = weekAnchors(calendar, moment(row["at"]));
    EXPECT_EQ(textsOf(anchors), row["anchors"].get<std::vector<std::string>>());
    std::vector<std::vector<std::string>> weeks;
    for (const foundation::Date anchor : anchors) weeks.push_back(textsOf(daysOfWeek(calendar, anchor)));
    EXPECT_EQ(weeks, row["weeks"].get<std::vector<std::vector<std::string>>>());
  }
}

}  // namespace
}  // namespace mirune
