#include "host/commands/timeline_listing.hpp"

#include <gtest/gtest.h>

namespace {

using foundation::JSON;

const messages::Timeline timeline = {.kind = "Fake",
                                     .policy = {{"after", "2026-11-21T23:00:00Z"}},
                                     .entries = {{{"date", "2026-11-20T23:00:00Z"},
                                                  {"count", 3},
                                                  {"title", "a \"b\"\n"},
                                                  {"items", {1, 2}},
                                                  {"days", JSON::array({7})},
                                                  {"color", {{"red", 1}}},
                                                  {"note", nullptr}},
                                                 {{"date", "0999-01-01T00:00:00.250Z"}},
                                                 {{"date", 5}}}};

TEST(TimelineListing, ShowsDatesOnTheWallClockAndMembersInBrief) {
  EXPECT_EQ(
      host::timelineListing(timeline, *foundation::TimeZone::named("Etc/GMT-1")),
      "2026-11-21 00:00:00  count: 3, title: \"a \\\"b\\\"\\n\", items: 2 items, days: 1 item, color: {…}, note: null\n"
      "0999-01-01 01:00:00\n"
      "5\n"
      "policy: after 2026-11-22 00:00:00\n");
}

}  // namespace
