#include "host/demo/demo_template.hpp"

#include <gtest/gtest.h>

#include <vector>

#include "foundation/iso8601.hpp"

namespace {

struct Case {
  const char* now;
  const char* timeZone;
  const char* text;
  const char* expanded;  // an unknown placeholder is shown as "? " and its text
};

void check(const std::vector<Case>& cases) {
  for (const auto& [now, timeZone, text, expanded] : cases) {
    const auto result =
        host::expandTemplate(text, *foundation::parseISO8601(now), *foundation::TimeZone::named(timeZone));
    EXPECT_EQ(result ? *result : "? " + result.error(), expanded) << text << " at " << now << " in " << timeZone;
  }
}

constexpr const char* autumn = "2026-11-21T08:00:00Z";

TEST(DemoTemplate, DaysAreKeys) {
  check({{autumn, "Europe/Berlin", "{day+0} {day-0}", "2026/11/21 2026/11/21"},
         {autumn, "Europe/Berlin", "{day-3}{day+10}", "2026/11/182026/12/01"},
         {autumn, "Europe/Berlin", "{day-325}", "2025/12/31"},
         {"2026-11-21T23:30:00Z", "Europe/Berlin", "{day+0}", "2026/11/22"},
         {"2026-11-21T03:30:00Z", "America/New_York", "{day+0}", "2026/11/20"},
         // The days at both sides of a clock change, counted from its last hour.
         {"2026-10-25T22:30:00Z", "Europe/Berlin", "{day-1} {day+1}", "2026/10/24 2026/10/26"}});
}

TEST(DemoTemplate, TimesAreMoments) {
  check({{autumn, "UTC", "{time+0 00:00} {time+0 23:59}", "2026-11-21T00:00:00Z 2026-11-21T23:59:00Z"},
         {autumn, "Europe/Berlin", "{time+1 09:30}", "2026-11-22T08:30:00Z"},
         {autumn, "Asia/Kathmandu", "{time-1 00:15}", "2026-11-19T18:30:00Z"},
         // In the summer half of the year, asked in winter.
         {autumn, "Europe/Berlin", "{time-60 09:30}", "2026-09-22T07:30:00Z"},
         // 02:00 to 03:00 is skipped.
         {"2026-03-29T12:00:00Z", "Europe/Berlin", "{time+0 02:30}", "2026-03-29T01:00:00Z"},
         // 02:00 to 03:00 comes twice.
         {"2026-10-25T12:00:00Z", "Europe/Berlin", "{time+0 02:30}", "2026-10-25T00:30:00Z"},
         // Midnight is skipped: the day begins at 01:00.
         {"2018-11-04T12:00:00Z", "America/Sao_Paulo", "{time+0 00:00} {day+1}", "2018-11-04T03:00:00Z 2018/11/05"}});
}

TEST(DemoTemplate, OtherBracesStandOrAreRefused) {
  check({{autumn, "UTC", "", ""},
         {autumn, "UTC", "{", "{"},
         {autumn, "UTC", R"({"{day+0}": [{ }]})", R"({"2026/11/21": [{ }]})"},
         {autumn, "UTC", "{\n  \"a\": 1}", "{\n  \"a\": 1}"},
         {autumn, "UTC", "a {name} b", "? {name}"},
         {autumn, "UTC", "{day}", "? {day}"},
         {autumn, "UTC", "{day+1 09:30}", "? {day+1 09:30}"},
         {autumn, "UTC", "{time+1}", "? {time+1}"},
         {autumn, "UTC", "{day+1000000}", "? {day+1000000}"},
         {autumn, "UTC", "{time+0 24:00}", "? {time+0 24:00}"},
         {autumn, "UTC", "{time+0 09:60}", "? {time+0 09:60}"},
         {autumn, "UTC", "\"{day+0\": 1,\n}", "? {day+0\": 1,"},
         {autumn, "UTC", "{day+0", "? {day+0"}});
}

}  // namespace
