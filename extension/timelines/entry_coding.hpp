#pragma once

#include "foundation/json.hpp"
#include "timelines/entries.hpp"

// Entries travel to the host and back, and scripts read them: the members of the JSON objects are called as the fields.
// Reading throws foundation::JSON::exception where a member is missing or of another type.

namespace mirune {

void to_json(foundation::JSON& json, const SimpleEntry& entry);
void from_json(const foundation::JSON& json, SimpleEntry& entry);
void to_json(foundation::JSON& json, const TaskWidgetInner& item);
void from_json(const foundation::JSON& json, TaskWidgetInner& item);
void to_json(foundation::JSON& json, const TaskEntry& entry);
void from_json(const foundation::JSON& json, TaskEntry& entry);
void to_json(foundation::JSON& json, const EventWidgetInner& item);
void from_json(const foundation::JSON& json, EventWidgetInner& item);
void to_json(foundation::JSON& json, const EventEntry& entry);
void from_json(const foundation::JSON& json, EventEntry& entry);
void to_json(foundation::JSON& json, const TaskEventEntry& entry);
void from_json(const foundation::JSON& json, TaskEventEntry& entry);
void to_json(foundation::JSON& json, const CalendarEntry& entry);
void from_json(const foundation::JSON& json, CalendarEntry& entry);
void to_json(foundation::JSON& json, const MiruneDailyMood& mood);
void from_json(const foundation::JSON& json, MiruneDailyMood& mood);
void to_json(foundation::JSON& json, const MoodWidgetInner& item);
void from_json(const foundation::JSON& json, MoodWidgetInner& item);
void to_json(foundation::JSON& json, const MoodEntry& entry);
void from_json(const foundation::JSON& json, MoodEntry& entry);

}  // namespace mirune
