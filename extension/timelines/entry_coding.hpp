#pragma once

#include <tuple>
#include <type_traits>

#include "foundation/json.hpp"
#include "timelines/display_color.hpp"
#include "timelines/entries.hpp"

// Entries travel to the host and back, and scripts read them: the members of the JSON objects are called as the fields.
// Reading throws foundation::JSON::exception where a member is missing or of another type.

namespace mirune {

/// A field of a record and what its member is called.
template <class Record, class Value>
struct Field {
  const char* name = "";
  Value Record::* value = nullptr;
};

// Which fields a record has, in order.

constexpr auto fieldsOf(std::type_identity<SimpleEntry>) {
  return std::tuple{Field{"date", &SimpleEntry::date}};
}

constexpr auto fieldsOf(std::type_identity<TaskWidgetInner>) {
  return std::tuple{Field{"id", &TaskWidgetInner::id}, Field{"title", &TaskWidgetInner::title},
                    Field{"isOn", &TaskWidgetInner::isOn}, Field{"date", &TaskWidgetInner::date}};
}

constexpr auto fieldsOf(std::type_identity<TaskEntry>) {
  return std::tuple{Field{"date", &TaskEntry::date},
                    Field{"data", &TaskEntry::data},
                    Field{"itemtype", &TaskEntry::itemtype},
                    Field{"count", &TaskEntry::count},
                    Field{"totalTaskCount", &TaskEntry::totalTaskCount},
                    Field{"image", &TaskEntry::image},
                    Field{"name", &TaskEntry::name}};
}

constexpr auto fieldsOf(std::type_identity<EventWidgetInner>) {
  return std::tuple{Field{"id", &EventWidgetInner::id},
                    Field{"title", &EventWidgetInner::title},
                    Field{"calid", &EventWidgetInner::calid},
                    Field{"color", &EventWidgetInner::color},
                    Field{"time", &EventWidgetInner::time},
                    Field{"allday", &EventWidgetInner::allday},
                    Field{"starttime", &EventWidgetInner::starttime},
                    Field{"endtime", &EventWidgetInner::endtime}};
}

constexpr auto fieldsOf(std::type_identity<EventEntry>) {
  return std::tuple{Field{"date", &EventEntry::date}, Field{"data", &EventEntry::data},
                    Field{"count", &EventEntry::count}, Field{"image", &EventEntry::image},
                    Field{"name", &EventEntry::name}};
}

constexpr auto fieldsOf(std::type_identity<TaskEventEntry>) {
  return std::tuple{Field{"date", &TaskEventEntry::date}, Field{"taskEntry", &TaskEventEntry::taskEntry},
                    Field{"eventEntry", &TaskEventEntry::eventEntry}};
}

constexpr auto fieldsOf(std::type_identity<CalendarEntry>) {
  return std::tuple{Field{"date", &CalendarEntry::date}, Field{"month_date", &CalendarEntry::month_date},
                    Field{"today_date", &CalendarEntry::today_date}};
}

constexpr auto fieldsOf(std::type_identity<MiruneDailyMood>) {
  return std::tuple{Field{"id", &MiruneDailyMood::id},
                    Field{"name", &MiruneDailyMood::name},
                    Field{"icon", &MiruneDailyMood::icon},
                    Field{"color", &MiruneDailyMood::color},
                    Field{"isOriginalColor", &MiruneDailyMood::isOriginalColor},
                    Field{"hasBeenDeleted", &MiruneDailyMood::hasBeenDeleted}};
}

constexpr auto fieldsOf(std::type_identity<MoodWidgetInner>) {
  return std::tuple{Field{"id", &MoodWidgetInner::id}, Field{"moodData", &MoodWidgetInner::moodData},
                    Field{"text", &MoodWidgetInner::text}};
}

constexpr auto fieldsOf(std::type_identity<MoodEntry>) {
  return std::tuple{Field{"date", &MoodEntry::date},           Field{"data", &MoodEntry::data},
                    Field{"monthdata", &MoodEntry::monthdata}, Field{"monthdatadict", &MoodEntry::monthdatadict},
                    Field{"text", &MoodEntry::text},           Field{"day", &MoodEntry::day}};
}

// The list of an entry's events is written like a vector of them.
void to_json(foundation::JSON& json, const EventList& events);
void from_json(const foundation::JSON& json, EventList& events);

template <class Record>
concept CodedRecord = requires { fieldsOf(std::type_identity<Record>()); };

template <CodedRecord Record>
void to_json(foundation::JSON& json, const Record& record) {
  json = foundation::JSON::object();
  const auto write = [&](const auto& field) {
    const auto& value = record.*field.value;
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, uikit::Color>) {
      json[field.name] = jsonOfColor(value);
    } else {
      json[field.name] = value;
    }
  };
  std::apply([&](const auto&... field) { (write(field), ...); }, fieldsOf(std::type_identity<Record>()));
}

template <CodedRecord Record>
void from_json(const foundation::JSON& json, Record& record) {
  const auto read = [&](const auto& field) {
    auto& value = record.*field.value;
    const foundation::JSON& member = json.at(field.name);
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, uikit::Color>) {
      value = colorOfJSON(member);
    } else {
      value = member.get<std::remove_cvref_t<decltype(value)>>();
    }
  };
  std::apply([&](const auto&... field) { (read(field), ...); }, fieldsOf(std::type_identity<Record>()));
}

}  // namespace mirune
