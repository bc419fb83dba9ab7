#include "timelines/event_entries.hpp"

#include <gtest/gtest.h>

#include "planner.hpp"

namespace mirune {
namespace {

nlohmann::json event(const std::string& title, const std::string& start, const std::string& end,
                     const nlohmann::json& more = nlohmann::json::object()) {
  nlohmann::json event = item(1, 3);
  event["title"] = title;
  event["starttime"] = start;
  event["endtime"] = end;
  event.update(more);
  return event;
}

/// "2026-11-21T10:00:00Z a b": when an entry begins and what it lists.
std::string lineOf(const EventEntry& entry) {
  std::string line = foundation::formatMoment(entry.date);
  for (const EventWidgetInner& each : entry.data) line += " " + each.title;
  EXPECT_EQ(entry.count, static_cast<std::int64_t>(std::distance(entry.data.begin(), entry.data.end()))) << line;
  EXPECT_EQ(entry.data.size(), static_cast<std::size_t>(entry.count)) << line;
  return line;
}

/// The lines of the entries that today's items give.
std::vector<std::string> linesOfToday(const std::vector<nlohmann::json>& items, const Situation& situation = {}) {
  Planner planner;
  const uikit::Platform platform = planner.at(situation);
  planner.write("events.json", {{foundation::dayKey(platform.now, platform.calendar.timeZone()), items}});
  const auto entries = eventEntries(platform);
  // The fourteen days after have no items, so an entry each.
  std::vector<std::string> lines;
  for (std::size_t i = 0; i + 14 < entries.size(); ++i) lines.push_back(lineOf(entries[i]));
  return lines;
}

using Lines = std::vector<std::string>;

TEST(EventEntries, ListWhatIsNotOverAtEachMoment) {
  const struct {
    const char* name;
    std::vector<nlohmann::json> items;
    Lines lines;
  } rows[] = {
      {"one after the other: the moment between them comes once",
       {event("a", "2026-11-21T09:00:00Z", "2026-11-21T10:00:00Z"),
        event("b", "2026-11-21T10:00:00Z", "2026-11-21T11:00:00Z")},
       {"2026-11-21T00:00:00Z a b", "2026-11-21T09:00:00Z a b", "2026-11-21T10:00:00Z b", "2026-11-21T11:00:00Z"}},
      {"of two that begin together the shorter one first; moments in the order met, not in that of time",
       {event("long", "2026-11-21T10:00:00Z", "2026-11-21T12:00:00Z"),
        event("short", "2026-11-21T10:00:00Z", "2026-11-21T10:30:00Z"),
        event("within", "2026-11-21T10:45:00Z", "2026-11-21T11:00:00Z")},
       {"2026-11-21T00:00:00Z short long within", "2026-11-21T10:00:00Z short long within",
        "2026-11-21T10:30:00Z long within", "2026-11-21T12:00:00Z", "2026-11-21T10:45:00Z long within",
        "2026-11-21T11:00:00Z long"}},
      {"equal times keep the order of the file",
       {event("c", "2026-11-21T10:00:00Z", "2026-11-21T11:00:00Z"),
        event("a", "2026-11-21T10:00:00Z", "2026-11-21T11:00:00Z"),
        event("b", "2026-11-21T10:00:00Z", "2026-11-21T11:00:00Z")},
       {"2026-11-21T00:00:00Z c a b", "2026-11-21T10:00:00Z c a b", "2026-11-21T11:00:00Z"}},
      {"one that begins with the day does not repeat its start; an all-day one stays",
       {event("day", "2026-11-21T00:00:00Z", "2026-11-21T00:00:00Z", {{"allday", true}}),
        event("a", "2026-11-21T00:00:00Z", "2026-11-21T01:00:00Z")},
       {"2026-11-21T00:00:00Z day a", "2026-11-21T01:00:00Z day"}},
      {"the clock times of another day count on this one",
       {event("a", "2026-11-20T21:00:00Z", "2026-12-24T22:30:45Z")},
       {"2026-11-21T00:00:00Z a", "2026-11-21T21:00:00Z a", "2026-11-21T22:30:00Z"}},
      {"one that ends before it begins is over early",
       {event("night", "2026-11-21T22:00:00Z", "2026-11-22T06:00:00Z")},
       {"2026-11-21T00:00:00Z night", "2026-11-21T22:00:00Z", "2026-11-21T06:00:00Z"}},
      {"tasks and habits are no events", {item(1, 1), item(2, 2)}, {"2026-11-21T00:00:00Z"}},
  };
  for (const auto& row : rows) EXPECT_EQ(linesOfToday(row.items), row.lines) << row.name;
}

TEST(EventEntries, StandOnDaysThatBeginLate) {
  const auto allDay = event("day", "2024-01-01T00:00:00Z", "2024-01-01T00:00:00Z", {{"allday", true}});
  EXPECT_EQ(linesOfToday({event("a", "2024-04-25T22:30:00Z", "2024-04-26T07:00:00Z"), allDay},
                         {.now = "2024-04-26T06:00:00Z", .timeZone = "Africa/Cairo"}),
            (Lines{"2024-04-25T22:00:00Z a day", "2024-04-25T22:30:00Z a day", "2024-04-26T07:00:00Z day",
                   "2024-04-25T23:00:00Z a day"}))
      << "the all-day event's midnight was 02:00 by the clocks of its own day";
  EXPECT_EQ(linesOfToday({event("a", "2024-03-31T10:00:00Z", "2024-03-31T11:00:00Z")},
                         {.now = "2024-03-31T06:00:00Z", .timeZone = "Asia/Beirut"}),
            (Lines{"2024-03-30T22:00:00Z a", "2024-03-31T10:00:00Z a", "2024-03-31T11:00:00Z"}));
}

TEST(EventEntries, GiveADayWithoutItemsOneEntry) {
  Planner planner;
  for (const char* content : {"", "[]", R"({"2026/11/21": [{"type": 3}]})"}) {
    if (*content != '\0') support::writeBytes(planner.folder() / "events.json", content);
    const auto entries = eventEntries(planner.platform());
    ASSERT_EQ(entries.size(), 15U) << content;
    EXPECT_EQ(lineOf(entries[0]), "2026-11-21T00:00:00Z");
    EXPECT_EQ(lineOf(entries[14]), "2026-12-05T00:00:00Z");
    EXPECT_EQ(entries[14].name, "Events");
    EXPECT_EQ(entries[14].image - entries[0].image, 14);
  }
}

TEST(EventEntries, SayHowAnEventLooks) {
  Planner planner;
  planner.write("events.json",
                {{"2026/11/21",
                  {event("own", "2026-11-21T08:05:00Z", "2026-11-21T20:00:00Z", {{"colorHex", "#336699"}}),
                   event("plain", "2026-11-21T09:00:00Z", "2026-11-21T20:00:00Z", {{"colorHex", ""}}),
                   event("odd", "2026-11-21T10:00:00Z", "2026-11-21T20:00:00Z", {{"colorHex", "reddish"}})}}});
  const auto entry = eventEntries(planner.at({.timeZone = "America/New_York"})).at(0);
  std::vector<EventWidgetInner> events(entry.data.begin(), entry.data.end());
  ASSERT_EQ(events.size(), 3U);
  EXPECT_EQ(events[0].time, "3:05\u202FAM - 3:00\u202FPM");
  EXPECT_EQ(events[0].calid, "c");
  EXPECT_EQ(events[0].color, uikit::Color(uikit::RGBA{.red = 0.2, .green = 0.4, .blue = 0.6}));
  EXPECT_EQ(events[1].color, uikit::Color(uikit::SystemColor::label));
  EXPECT_EQ(events[2].color, uikit::Color(uikit::RGBA{}));
  EXPECT_NE(events[0].id, events[1].id) << "ids are fresh, though the items carry the same";
  EXPECT_NE(events[0].id.string(), idNumber(1));
}

}  // namespace
}  // namespace mirune
