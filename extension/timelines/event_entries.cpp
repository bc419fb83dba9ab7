#include "timelines/event_entries.hpp"

#include <algorithm>
#include <map>
#include <set>

#include "foundation/date_formatter.hpp"
#include "foundation/fatal_error.hpp"
#include "shared/item_files.hpp"
#include "shared/shown_days.hpp"
#include "styling/hex_color.hpp"
#include "timelines/color_offset.hpp"
#include "timelines/days.hpp"

namespace mirune {
namespace {

using foundation::CalendarComponent;
using foundation::Date;

/// The same hour and minute on the entry's day.
std::optional<Date> movedOnto(Date day, Date time, const foundation::Calendar& calendar) {
  const auto hour = calendar.component(CalendarComponent::hour, time);
  const auto minute = calendar.component(CalendarComponent::minute, time);
  return calendar.dateBySettingHour(static_cast<int>(hour), static_cast<int>(minute), 0, day);
}

/// Writes times of the day. A list of events has the same ones over and over.
class TimeTexts {
 public:
  explicit TimeTexts(const foundation::Calendar& calendar)
      : calendar_(calendar), formatter_(foundation::DateFormatter::shortTime(calendar)) {}

  const std::string& operator()(Date time) {
    const auto minuteOfDay =
        60 * calendar_.component(CalendarComponent::hour, time) + calendar_.component(CalendarComponent::minute, time);
    const auto [known, isNew] = texts_.try_emplace(minuteOfDay);
    if (isNew) known->second = formatter_.string(time);
    return known->second;
  }

 private:
  const foundation::Calendar& calendar_;
  foundation::DateFormatter formatter_;
  std::map<std::int64_t, std::string> texts_;
};

/// Turns the items of a day into its events.
class EventsOfDay {
 public:
  explicit EventsOfDay(const uikit::Platform& platform) : platform_(platform), time_(platform.calendar) {}

  DayOfEvents sorted(const std::vector<WidgetData>& items, Date day) {
    std::vector<EventWidgetInner> events;
    for (const WidgetData& item : items) {
      if (item.type == WidgetDataType::event) events.push_back(event(item, day));
    }
    const auto times = [](const EventWidgetInner& event) {
      if (!event.starttime || !event.endtime) foundation::fatalError("an event has no time on its day");
      return std::pair(*event.starttime, *event.endtime);
    };
    std::ranges::stable_sort(events, {}, times);
    return std::make_shared<const std::vector<EventWidgetInner>>(std::move(events));
  }

 private:
  EventWidgetInner event(const WidgetData& item, Date day) {
    const auto& calendar = platform_.calendar;
    const bool hasColor = item.colorHex && !item.colorHex->empty();
    return {.id = foundation::UUID::random(platform_.random),
            .title = item.title,
            .calid = item.calid,
            .color = hasColor ? uikit::Color(platformColorOfHex(*item.colorHex)) : uikit::SystemColor::label,
            .time = time_(item.starttime) + " - " + time_(item.endtime),
            .allday = item.allday,
            .starttime = movedOnto(day, item.starttime, calendar),
            .endtime = movedOnto(day, item.endtime, calendar)};
  }

  const uikit::Platform& platform_;
  TimeTexts time_;
};

/// The moments at which the day's list changes, its start first, each once, in the order met.
std::vector<Date> boundaries(const std::vector<EventWidgetInner>& events, Date startOfDay) {
  std::vector<Date> moments;
  std::set<Date> met;
  const auto meet = [&](Date moment) {
    if (met.insert(moment).second) moments.push_back(moment);
  };
  meet(startOfDay);
  for (const EventWidgetInner& event : events) {
    meet(*event.starttime);
    meet(*event.endtime);
  }
  return moments;
}

/// Counts the events that are still to come at a moment without looking at each.
class Countdown {
 public:
  explicit Countdown(const std::vector<EventWidgetInner>& events) {
    for (const EventWidgetInner& event : events) {
      if (event.allday) {
        ++allDay_;
      } else {
        ends_.push_back(*event.endtime);
      }
    }
    std::ranges::sort(ends_);
  }

  std::size_t stillToCome(Date moment) const {
    return allDay_ + static_cast<std::size_t>(ends_.end() - std::ranges::upper_bound(ends_, moment));
  }

 private:
  std::size_t allDay_ = 0;
  std::vector<Date> ends_;
};

}  // namespace

std::vector<EventEntry> eventEntries(const uikit::Platform& platform) {
  // The offset is fixed before any file is read, as the planner expects of the first request.
  const std::int64_t offset = fixedColorOffset(platform);
  const ItemFile items = readItemFile(platform, "events", shownDayKeys(platform));
  const auto& calendar = platform.calendar;
  EventsOfDay eventsOfDay(platform);
  const std::string name = platform.words.localized("Events");
  const Date start = calendar.startOfDay(platform.now);
  std::vector<EventEntry> entries;
  for (int i = 0; i < shownDays; ++i) {
    const Date day = dayAfter(calendar, start, i);
    const std::int64_t image = badgeNumber(offset, calendar, day);
    const auto& filed = itemsUnder(items, foundation::dayKey(day, calendar.timeZone()));
    const DayOfEvents events = eventsOfDay.sorted(filed, day);
    const Countdown countdown(*events);
    for (const Date moment : boundaries(*events, day)) {
      const std::size_t count = countdown.stillToCome(moment);
      entries.push_back({.date = moment,
                         .data = EventList(events, moment, count),
                         .count = static_cast<std::int64_t>(count),
                         .image = image,
                         .name = name});
    }
  }
  return entries;
}

}  // namespace mirune
