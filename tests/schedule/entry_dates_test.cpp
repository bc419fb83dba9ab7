#include "schedule/entry_dates.hpp"

#include <gtest/gtest.h>

#include <vector>

#include "schedule/virtual_host.hpp"

namespace host {
namespace {

foundation::Date at(int seconds) {
  return foundation::Date(std::chrono::seconds(seconds));
}

std::optional<foundation::Date> at(std::optional<int> seconds) {
  return seconds ? std::optional(at(*seconds)) : std::nullopt;
}

TEST(EntryDates, TellWhatIsShownAndWhatComesNext) {
  struct Case {
    const char* name;
    std::vector<int> dates;
    int moment;
    std::optional<ShownEntry> shown;
    std::optional<int> next;
  };
  const std::vector<Case> cases = {
      {"nothing to show", {}, 10, std::nullopt, std::nullopt},
      {"the only one, due", {5}, 10, ShownEntry{0}, std::nullopt},
      {"the only one, ahead", {15}, 10, ShownEntry{0, true}, 15},
      {"due at this very moment", {5, 10, 15}, 10, ShownEntry{1}, 15},
      {"a second before the next", {5, 10, 15}, 9, ShownEntry{0}, 10},
      {"long after the last", {5, 10, 15}, 1000, ShownEntry{2}, std::nullopt},
      {"the earliest where all lie ahead", {30, 20, 40}, 10, ShownEntry{1, true}, 20},
      {"order does not matter", {15, 5, 10, 1}, 12, ShownEntry{2}, 15},
      {"the last of equal dates", {5, 8, 8, 3}, 10, ShownEntry{2}, std::nullopt},
      {"the last of equal dates ahead", {20, 15, 15, 30}, 10, ShownEntry{2, true}, 15},
      {"equal dates change once", {5, 15, 15, 5, 20}, 10, ShownEntry{3}, 15},
      {"an old one rather than one soon", {-100000, 11}, 10, ShownEntry{0}, 11},
  };
  for (const auto& [name, seconds, moment, shown, next] : cases) {
    std::vector<foundation::Date> dates;
    for (const int second : seconds) dates.push_back(at(second));
    const EntryDates entries(dates);
    EXPECT_EQ(entries.shown(at(moment)), shown) << name;
    EXPECT_EQ(entries.next(at(moment)), at(next)) << name;
  }
}

TEST(EntryDates, AreReadFromATimeline) {
  const messages::Timeline timeline{
      .entries = {{{"date", "2026-11-22T00:00:00Z"}, {"text", "b"}}, {{"date", "2026-11-21T08:00:00.250Z"}}}};
  const auto dates = EntryDates::of(timeline);
  ASSERT_TRUE(dates);
  EXPECT_EQ(dates->shown(moment("2026-11-21T09:00:00Z")), ShownEntry{1});
  EXPECT_EQ(dates->next(moment("2026-11-21T08:00:00Z")), moment("2026-11-21T08:00:00.250Z"));

  for (const foundation::JSON& entry : {foundation::JSON::object(), foundation::JSON("2026-11-22T00:00:00Z"),
                                        foundation::JSON{{"date", 5}}, foundation::JSON{{"date", "tomorrow"}}}) {
    EXPECT_FALSE(EntryDates::of({.entries = {timeline.entries[0], entry}})) << entry;
  }
}

}  // namespace
}  // namespace host
