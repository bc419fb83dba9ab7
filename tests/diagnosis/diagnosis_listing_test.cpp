#include "host/commands/diagnosis_listing.hpp"

#include <gtest/gtest.h>

namespace host {
namespace {

using namespace std::chrono_literals;
using messages::FileState;

const foundation::Date now(1'000'000h);

TEST(AgeText, TakesTheUnitThatFits) {
  const struct {
    foundation::TimeInterval age;
    const char* text;
  } cases[] = {
      {0s, "0 s ago"},     {59999ms, "59 s ago"},     {60s, "1 min ago"},  {119min, "119 min ago"},
      {2h, "2 h ago"},     {47h + 59min, "47 h ago"}, {48h, "2 d ago"},    {365 * 24h, "365 d ago"},
      {-999ms, "0 s ago"}, {-1s, "in 1 s"},           {-150min, "in 2 h"},
  };
  for (const auto& each : cases) EXPECT_EQ(ageText(now - each.age, now), each.text);
}

TEST(SizeText, TakesTheUnitThatFits) {
  const struct {
    std::int64_t bytes;
    const char* text;
  } cases[] = {
      {0, "0 B"},
      {999, "999 B"},
      {1000, "1.0 kB"},
      {1299, "1.2 kB"},
      {999'999, "999.9 kB"},
      {3'456'789, "3.4 MB"},
      {INT64_MAX, "9223372.0 TB"},
  };
  for (const auto& each : cases) EXPECT_EQ(sizeText(each.bytes), each.text);
}

TEST(DiagnosisListing, TellsAFileInALine) {
  const messages::Diagnosis diagnosis = {
      .hasContainer = true,
      .files = {
          {.file = "a.json", .state = FileState::decoded, .modified = now - 3h, .size = 12},
          {.file = "long.json",
           .state = FileState::refused,
           .modified = now + 2h,
           .size = 1500,
           .problems = {"x\x1b[31m\xC2\x9B: missing", "é is none"},
           .consequence = "nothing to see"},
          {.file = "b.json", .state = FileState::unreadable, .problems = {"Is a directory"}, .consequence = "nothing"},
          {.file = "c.json", .consequence = "nothing yet"},
      }};
  EXPECT_EQ(diagnosisListing(diagnosis, {.now = now, .container = "/c"}),
            "container: /c\n"
            "a.json     3 h ago, 12 B, decodes\n"
            "long.json  in 2 h, 1.5 kB, does not decode\n"
            "  problem: x [31m : missing\n"
            "  problem: é is none\n"
            "  effect: nothing to see\n"
            "b.json     cannot be read\n"
            "  problem: Is a directory\n"
            "  effect: nothing\n"
            "c.json     not there: nothing yet\n"
            "3 problems\n");
}

}  // namespace
}  // namespace host
