#include "foundation/iso8601.hpp"

#include <gtest/gtest.h>

#include "support/recorded_cases.hpp"

namespace foundation {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

std::string printed(const std::optional<Date>& date) {
  return date ? formatMoment(*date) : "refused";
}

TEST(ISO8601, ReadsTheRecordedTexts) {
  for (const auto& row : support::recordedCases("platform/iso8601.json")) {
    const auto text = row["text"].get<std::string>();
    const auto wanted =
        row["seconds"].is_null() ? std::nullopt : std::optional(Date(seconds(row["seconds"].get<std::int64_t>())));
    EXPECT_EQ(printed(parseISO8601(text)), printed(wanted)) << text;
  }
}

TEST(ISO8601, RollsOverAndReadsZonesAsThePlatformDoes) {
  const struct {
    const char* text;
    const char* wanted;
  } rows[] = {
      {"2024-02-30T10:00:00Z", "2024-03-01T10:00:00Z"},
      {"2023-02-29T10:00:00Z", "2023-03-01T10:00:00Z"},
      {"2024-01-02T24:00:00Z", "2024-01-03T00:00:00Z"},
      {"2024-01-02T25:00:00Z", "2024-01-03T01:00:00Z"},
      {"2024-12-31T23:59:60Z", "2025-01-01T00:00:00Z"},
      {"2024-01-02T03:04:05+0100", "2024-01-02T02:04:05Z"},
      {"2024-01-02T03:04:05+1:00", "2024-01-02T02:04:05Z"},
      {"2024-01-02T03:04:05+01:00:30", "2024-01-02T02:03:35Z"},
      {"2024-01-02T03:04:05+01:60", "2024-01-02T01:04:05Z"},
      {"2024-01-02T03:04:05+18:00", "2024-01-01T09:04:05Z"},
      {"2024-01-02T03:04:05+18:01", "refused"},
      {"2024-01-02T03:04:05+01", "refused"},
      {"2024-01-02T03:04:05+01:xx", "refused"},
      {"2024-01-02T03:04:05UTC", "2024-01-02T03:04:05Z"},
      {"2024-01-02T03:04:05gmt-02:00", "2024-01-02T05:04:05Z"},
      {"2024-01-02T03:04:05z", "2024-01-02T03:04:05Z"},
      {"2024-01-02T03:04:05Z and more", "2024-01-02T03:04:05Z"},
      {"2024-1-2T3:4:5Z", "2024-01-02T03:04:05Z"},
      {"2024-01-02T003:04:05Z", "refused"},
      {"0999-01-01T00:00:00Z", "0999-01-01T00:00:00Z"},
      {"1582-10-04T00:00:00Z", "1582-10-04T00:00:00Z"},
      {"10000-01-01T00:00:00Z", "10000-01-01T00:00:00Z"},
      {"9999999999-01-01T00:00:00Z", "refused"},
      {"99999999999-01-01T00:00:00Z", "refused"},
  };
  for (const auto& row : rows) EXPECT_EQ(printed(parseISO8601(row.text)), row.wanted) << row.text;
}

TEST(ISO8601, RefusesEveryDamageOfTheUsualForm) {
  const std::string text = "2024-03-07T10:20:30Z";
  for (std::size_t place = 0; place < text.size(); ++place) {
    for (const char byte : std::string_view("x/:")) {
      if (text[place] == byte) continue;
      std::string damaged = text;
      damaged[place] = byte;
      EXPECT_EQ(parseISO8601(damaged), std::nullopt) << damaged;
    }
  }
}

TEST(ISO8601, GoesOnTheDayAfterTheLastJulianDayWithTheFirstGregorianOne) {
  const Date last = parseISO8601("1582-10-04T12:00:00Z").value();
  EXPECT_EQ(formatISO8601(last + std::chrono::hours(24)), "1582-10-15T12:00:00Z");
  EXPECT_EQ(parseISO8601("1582-10-15T12:00:00Z"), last + std::chrono::hours(24));
  for (Date date = last - std::chrono::hours(24 * 365 * 9); date < last + std::chrono::hours(24 * 365 * 9);
       date += std::chrono::hours(24 * 13)) {
    EXPECT_EQ(printed(parseISO8601(formatISO8601(date))), formatISO8601(date));
  }
}

TEST(ISO8601, PrintsFlooredSeconds) {
  EXPECT_EQ(formatISO8601(Date(milliseconds(1999))), "1970-01-01T00:00:01Z");
  EXPECT_EQ(formatISO8601(Date(milliseconds(-1))), "1969-12-31T23:59:59Z");
}

TEST(Moment, SurvivesPrintingAndReading) {
  for (const std::int64_t count : {0LL, 1LL, -1LL, 250LL, 1709805600000LL, 1709805600999LL, -62135596800000LL}) {
    const Date date{milliseconds(count)};
    EXPECT_EQ(parseMoment(formatMoment(date)), date) << formatMoment(date);
  }
  EXPECT_EQ(formatMoment(Date(milliseconds(250))), "1970-01-01T00:00:00.250Z");
  EXPECT_EQ(formatMoment(Date(milliseconds(-1))), "1969-12-31T23:59:59.999Z");
}

TEST(Moment, TakesNothingBehindTheZoneAndOnlyThreeDigitsOfAFraction) {
  for (const char* text :
       {"2024-01-02T03:04:05Zx", "2024-01-02T03:04:05.5Z", "2024-01-02T03:04:05.1234Z", "2024-01-02T03:04:05.Z", ""}) {
    EXPECT_EQ(printed(parseMoment(text)), "refused") << text;
  }
  EXPECT_EQ(printed(parseMoment("2024-01-02T03:04:05.125+01:00")), "2024-01-02T02:04:05.125Z");
}

}  // namespace
}  // namespace foundation
