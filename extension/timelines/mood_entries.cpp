#include "timelines/mood_entries.hpp"

#include "foundation/date_formatter.hpp"
#include "foundation/fatal_error.hpp"
#include "foundation/strings.hpp"
#include "timelines/days.hpp"

namespace mirune {
namespace {

using foundation::CalendarComponent;

constexpr int stripDays = 6;  ///< today is the last of them
constexpr std::size_t longestMonth = 31;

const MiruneDailyMood missingMood{.name = "Error", .icon = "cat-circle_placeholder", .color = "ff0000"};

MoodWidgetInner moodOf(foundation::Date day, const MoodFile& moods, const uikit::Platform& platform) {
  const auto& calendar = platform.calendar;
  const auto found = moods.find(foundation::dayKey(day, calendar.timeZone()));
  return {.id = foundation::UUID::random(platform.random),
          .moodData = found != moods.end() ? found->second : missingMood,
          .text = std::to_string(calendar.component(CalendarComponent::day, day))};
}

/// The days of a stretch of the calendar, each found from the one before.
std::vector<MoodWidgetInner> moodsIn(const foundation::DateInterval& interval, const MoodFile& moods,
                                     const uikit::Platform& platform) {
  std::vector<MoodWidgetInner> days;
  auto day = interval.start;
  while (interval.contains(day) && days.size() < longestMonth) {
    days.push_back(moodOf(day, moods, platform));
    day = dayAfter(platform.calendar, day, 1);
  }
  return days;
}

}  // namespace

std::vector<MoodEntry> moodEntries(const uikit::Platform& platform) {
  const auto& calendar = platform.calendar;
  const auto month = calendar.dateInterval(foundation::CalendarPeriod::month, platform.now);
  if (!month) foundation::fatalError("the month of moods cannot be formed");
  const MoodFile moods = readMoodFile(platform);

  MoodEntry entry{.date = platform.now,
                  .text = foundation::uppercased(foundation::DateFormatter(calendar, "LLLL yyyy").string(platform.now)),
                  .day = calendar.component(CalendarComponent::day, platform.now)};
  const auto first = dayAfter(calendar, calendar.startOfDay(platform.now), 1 - stripDays);
  for (int k = 0; k < stripDays; ++k) entry.data.push_back(moodOf(dayAfter(calendar, first, k), moods, platform));
  entry.monthdata = moodsIn(*month, moods, platform);
  for (const MoodWidgetInner& day : entry.monthdata) entry.monthdatadict[day.text] = day;
  return {std::move(entry)};
}

}  // namespace mirune
