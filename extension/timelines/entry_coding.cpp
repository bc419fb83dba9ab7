#include "timelines/entry_coding.hpp"

#include <tuple>

#include "timelines/display_color.hpp"

namespace mirune {
namespace {

using foundation::JSON;

/// A field of a record and what its member is called.
template <class Record, class Value>
struct Field {
  const char* name;
  Value Record::* value;
};

// Which fields a record has, in order.

constexpr std::tuple simpleEntryFields{Field{"date", &SimpleEntry::date}};

constexpr std::tuple taskItemFields{Field{"id", &TaskWidgetInner::id}, Field{"title", &TaskWidgetInner::title},
                                    Field{"isOn", &TaskWidgetInner::isOn}, Field{"date", &TaskWidgetInner::date}};

constexpr std::tuple taskEntryFields{Field{"date", &TaskEntry::date},
                                     Field{"data", &TaskEntry::data},
                                     Field{"itemtype", &TaskEntry::itemtype},
                                     Field{"count", &TaskEntry::count},
                                     Field{"totalTaskCount", &TaskEntry::totalTaskCount},
                                     Field{"image", &TaskEntry::image},
                                     Field{"name", &TaskEntry::name}};

constexpr std::tuple eventItemFields{Field{"id", &EventWidgetInner::id},
                                     Field{"title", &EventWidgetInner::title},
                                     Field{"calid", &EventWidgetInner::calid},
                                     Field{"color", &EventWidgetInner::color},
                                     Field{"time", &EventWidgetInner::time},
                                     Field{"allday", &EventWidgetInner::allday},
                                     Field{"starttime", &EventWidgetInner::starttime},
                                     Field{"endtime", &EventWidgetInner::endtime}};

constexpr std::tuple eventEntryFields{Field{"date", &EventEntry::date}, Field{"data", &EventEntry::data},
                                      Field{"count", &EventEntry::count}, Field{"image", &EventEntry::image},
                                      Field{"name", &EventEntry::name}};

constexpr std::tuple taskEventEntryFields{Field{"date", &TaskEventEntry::date},
                                          Field{"taskEntry", &TaskEventEntry::taskEntry},
                                          Field{"eventEntry", &TaskEventEntry::eventEntry}};

constexpr std::tuple calendarEntryFields{Field{"date", &CalendarEntry::date},
                                         Field{"month_date", &CalendarEntry::month_date},
                                         Field{"today_date", &CalendarEntry::today_date}};

constexpr std::tuple moodFields{Field{"id", &MiruneDailyMood::id},
                                Field{"name", &MiruneDailyMood::name},
                                Field{"icon", &MiruneDailyMood::icon},
                                Field{"color", &MiruneDailyMood::color},
                                Field{"isOriginalColor", &MiruneDailyMood::isOriginalColor},
                                Field{"hasBeenDeleted", &MiruneDailyMood::hasBeenDeleted}};

constexpr std::tuple moodItemFields{Field{"id", &MoodWidgetInner::id}, Field{"moodData", &MoodWidgetInner::moodData},
                                    Field{"text", &MoodWidgetInner::text}};

constexpr std::tuple moodEntryFields{
    Field{"date", &MoodEntry::date},           Field{"data", &MoodEntry::data},
    Field{"monthdata", &MoodEntry::monthdata}, Field{"monthdatadict", &MoodEntry::monthdatadict},
    Field{"text", &MoodEntry::text},           Field{"day", &MoodEntry::day}};

template <class Record, class... Fields>
void write(JSON& json, const Record& record, const std::tuple<Fields...>& fields) {
  json = JSON::object();
  const auto writeOne = [&](const char* name, const auto& value) {
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, uikit::Color>) {
      json[name] = jsonOfColor(value);
    } else {
      json[name] = value;
    }
  };
  std::apply([&](const auto&... field) { (writeOne(field.name, record.*field.value), ...); }, fields);
}

template <class Record, class... Fields>
void read(const JSON& json, Record& record, const std::tuple<Fields...>& fields) {
  const auto readOne = [&](const char* name, auto& value) {
    const JSON& member = json.at(name);
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, uikit::Color>) {
      value = colorOfJSON(member);
    } else {
      value = member.get<std::remove_cvref_t<decltype(value)>>();
    }
  };
  std::apply([&](const auto&... field) { (readOne(field.name, record.*field.value), ...); }, fields);
}

}  // namespace

void to_json(JSON& json, const SimpleEntry& entry) {
  write(json, entry, simpleEntryFields);
}
void from_json(const JSON& json, SimpleEntry& entry) {
  read(json, entry, simpleEntryFields);
}
void to_json(JSON& json, const TaskWidgetInner& item) {
  write(json, item, taskItemFields);
}
void from_json(const JSON& json, TaskWidgetInner& item) {
  read(json, item, taskItemFields);
}
void to_json(JSON& json, const TaskEntry& entry) {
  write(json, entry, taskEntryFields);
}
void from_json(const JSON& json, TaskEntry& entry) {
  read(json, entry, taskEntryFields);
}
void to_json(JSON& json, const EventWidgetInner& item) {
  write(json, item, eventItemFields);
}
void from_json(const JSON& json, EventWidgetInner& item) {
  read(json, item, eventItemFields);
}
void to_json(JSON& json, const EventEntry& entry) {
  write(json, entry, eventEntryFields);
}
void from_json(const JSON& json, EventEntry& entry) {
  read(json, entry, eventEntryFields);
}
void to_json(JSON& json, const TaskEventEntry& entry) {
  write(json, entry, taskEventEntryFields);
}
void from_json(const JSON& json, TaskEventEntry& entry) {
  read(json, entry, taskEventEntryFields);
}
void to_json(JSON& json, const CalendarEntry& entry) {
  write(json, entry, calendarEntryFields);
}
void from_json(const JSON& json, CalendarEntry& entry) {
  read(json, entry, calendarEntryFields);
}
void to_json(JSON& json, const MiruneDailyMood& mood) {
  write(json, mood, moodFields);
}
void from_json(const JSON& json, MiruneDailyMood& mood) {
  read(json, mood, moodFields);
}
void to_json(JSON& json, const MoodWidgetInner& item) {
  write(json, item, moodItemFields);
}
void from_json(const JSON& json, MoodWidgetInner& item) {
  read(json, item, moodItemFields);
}
void to_json(JSON& json, const MoodEntry& entry) {
  write(json, entry, moodEntryFields);
}
void from_json(const JSON& json, MoodEntry& entry) {
  read(json, entry, moodEntryFields);
}

}  // namespace mirune
