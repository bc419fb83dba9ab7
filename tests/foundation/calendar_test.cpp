#include "foundation/calendar.hpp"

#include <gtest/gtest.h>
#include <unicode/ucal.h>
#include <unicode/uenum.h>
#include <unicode/uloc.h>

#include "foundation/calendar_system.hpp"
#include "foundation/iso8601.hpp"
#include "support/recorded_cases.hpp"

namespace foundation {
namespace {

Date moment(std::string_view text) {
  return parseMoment(text).value();
}

Calendar calendarIn(std::string_view zone, std::string_view locale = "en_US") {
  return Calendar(Locale::named(locale).value(), TimeZone::named(zone).value());
}

std::string plusDays(const Calendar& calendar, std::int64_t days, std::string_view from) {
  const auto date = calendar.dateByAdding(CalendarComponent::day, days, moment(from));
  return date ? formatMoment(*date) : "nothing";
}

TEST(Calendar, AnswersAsRecorded) {
  for (const auto& row : support::recordedCases("platform/calendar.json")) {
    const auto at = row["at"].get<std::string>();
    const auto zone = row["timezone"].get<std::string>();
    const auto locale = row["locale"].get<std::string>();
    SCOPED_TRACE(at + " " + zone + " " + locale);
    const Calendar calendar = calendarIn(zone, locale);
    const Date date = moment(at);
    const Date start = calendar.startOfDay(date);

    EXPECT_EQ(dayKey(date, calendar.timeZone()), row["key"].get<std::string>());
    EXPECT_EQ(formatMoment(start), row["startOfDay"].get<std::string>());
    for (const auto& [days, wanted] : row["days"].get<std::vector<std::pair<int, std::string>>>()) {
      EXPECT_EQ(plusDays(calendar, days, formatMoment(start)), wanted) << days << " days";
    }
    EXPECT_EQ(calendar.ordinalityOfDayInYear(date), row["ordinal"].get<std::int64_t>());
    EXPECT_EQ(Calendar::iso8601(calendar.timeZone()).ordinalityOfDayInYear(date),
              row["isoOrdinal"].get<std::int64_t>());
    EXPECT_EQ(calendar.component(CalendarComponent::day, date), row["dayOfMonth"].get<std::int64_t>());
  }
}

TEST(Calendar, StartsADayWithoutMidnightAtItsFirstInstant) {
  const Calendar cairo = calendarIn("Africa/Cairo");
  EXPECT_EQ(formatMoment(cairo.startOfDay(moment("2024-04-26T12:00:00Z"))), "2024-04-25T22:00:00Z");
  EXPECT_EQ(cairo.component(CalendarComponent::hour, moment("2024-04-25T22:00:00Z")), 1);
  EXPECT_EQ(plusDays(cairo, 1, "2024-04-25T22:00:00Z"), "2024-04-26T22:00:00Z");
  EXPECT_EQ(plusDays(cairo, 1, "2024-04-24T22:00:00Z"), "2024-04-25T22:00:00Z");

  // 30 December 2011 does not exist: the 29th ends with the 31st.
  const Calendar apia = calendarIn("Pacific/Apia");
  EXPECT_EQ(formatMoment(apia.startOfDay(moment("2011-12-30T09:59:59Z"))), "2011-12-29T10:00:00Z");
  EXPECT_EQ(formatMoment(apia.startOfDay(moment("2011-12-30T10:00:00Z"))), "2011-12-30T10:00:00Z");
  EXPECT_EQ(dayKey(moment("2011-12-30T10:00:00Z"), apia.timeZone()), "2011/12/31");
  EXPECT_EQ(plusDays(apia, 1, "2011-12-29T10:00:00Z"), "2011-12-30T10:00:00Z");
}

TEST(Calendar, AddsDaysByTheWallClock) {
  const Calendar newYork = calendarIn("America/New_York");
  EXPECT_EQ(plusDays(newYork, 1, "2024-03-09T07:30:00Z"), "2024-03-10T07:30:00Z") << "02:30 is skipped: 03:30 EDT";
  EXPECT_EQ(plusDays(newYork, 1, "2024-11-02T05:30:00Z"), "2024-11-03T05:30:00Z") << "the first 01:30";
  EXPECT_EQ(plusDays(newYork, -1, "2024-11-04T06:30:00Z"), "2024-11-03T06:30:00Z") << "the 01:30 with today's offset";
  EXPECT_EQ(plusDays(newYork, -1, "2024-03-11T16:00:00.125Z"), "2024-03-10T16:00:00.125Z");
  EXPECT_EQ(plusDays(newYork, 0, "2024-11-03T06:30:00Z"), "2024-11-03T06:30:00Z") << "the second 01:30 stays";
}

TEST(Calendar, HasNoDateOutOfRange) {
  const Calendar calendar;
  for (const std::int64_t days :
       {std::int64_t{150'000'000'000}, INT64_MAX, INT64_MIN, -std::int64_t{150'000'000'000}}) {
    EXPECT_EQ(plusDays(calendar, days, "2024-01-01T00:00:00Z"), "nothing") << days;
  }
  EXPECT_NE(plusDays(calendar, 36'500'000, "2024-01-01T00:00:00Z"), "nothing");
}

TEST(Calendar, CountsYearsAndMonthsInItsOwnSystem) {
  const Date date = moment("2024-05-17T12:00:00Z");
  const struct {
    const char* locale;
    int year, month, day, ordinal;
  } rows[] = {
      {"en_US", 2024, 5, 17, 138},
      {"th_TH", 2567, 5, 17, 138},
      {"ja_JP@calendar=japanese", 6, 5, 17, 138},
      {"zh_TW@calendar=roc", 113, 5, 17, 138},
      {"fa_IR", 1403, 2, 28, 59},
      {"ar_SA", 1445, 11, 9, 304},
      {"fa_IR@calendar=gregorian", 2024, 5, 17, 138},
  };
  for (const auto& row : rows) {
    const Calendar calendar = calendarIn("UTC", row.locale);
    EXPECT_EQ(calendar.component(CalendarComponent::year, date), row.year) << row.locale;
    EXPECT_EQ(calendar.component(CalendarComponent::month, date), row.month) << row.locale;
    EXPECT_EQ(calendar.component(CalendarComponent::day, date), row.day) << row.locale;
    EXPECT_EQ(calendar.ordinalityOfDayInYear(date), row.ordinal) << row.locale;
  }
}

std::string systemOfICU(const char* locale) {
  UErrorCode status = U_ZERO_ERROR;
  UEnumeration* const systems = ucal_getKeywordValuesForLocale("calendar", locale, true, &status);
  const char* const first = uenum_next(systems, nullptr, &status);
  const std::string name = first == nullptr ? "none" : first;
  uenum_close(systems);
  return name;
}

std::string nameOf(CalendarIdentifier identifier) {
  switch (identifier) {
    case CalendarIdentifier::gregorian:
      return "gregorian";
    case CalendarIdentifier::buddhist:
      return "buddhist";
    case CalendarIdentifier::persian:
      return "persian";
    case CalendarIdentifier::islamicUmmAlQura:
      return "islamic-umalqura";
    default:
      return "another";
  }
}

TEST(CalendarSystem, IsTheOneThatICUGivesEachOfItsLocales) {
  const std::int32_t count = uloc_countAvailable();
  ASSERT_GT(count, 500);
  for (std::int32_t at = 0; at < count; ++at) {
    const char* const name = uloc_getAvailable(at);
    const auto locale = Locale::named(name);
    ASSERT_TRUE(locale) << name;
    EXPECT_EQ(nameOf(calendarIdentifierOf(*locale)), systemOfICU(name)) << name;
  }
}

}  // namespace
}  // namespace foundation
