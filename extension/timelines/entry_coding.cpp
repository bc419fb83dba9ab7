#include "timelines/entry_coding.hpp"

namespace mirune {

void to_json(foundation::JSON& json, const EventList& events) {
  json = foundation::JSON::array();
  for (const EventWidgetInner& event : events) json.push_back(event);
}

void from_json(const foundation::JSON& json, EventList& events) {
  events = EventList(json.get<std::vector<EventWidgetInner>>());
}

foundation::JSON jsonSharing(const EventEntry& entry, messages::SharedValues& shared) {
  EventEntry bare = entry;
  bare.data = {};
  foundation::JSON json = bare;
  std::vector<std::size_t> numbers;
  for (const EventWidgetInner& event : entry.data) {
    numbers.push_back(shared.numberOf(&event, [&] { return foundation::JSON(event); }));
  }
  if (!numbers.empty()) json["data"] = messages::SharedValues::reference(numbers);
  return json;
}

foundation::JSON jsonSharing(const TaskEventEntry& entry, messages::SharedValues& shared) {
  TaskEventEntry bare = entry;
  bare.eventEntry = {};
  foundation::JSON json = bare;
  json["eventEntry"] = jsonSharing(entry.eventEntry, shared);
  return json;
}

}  // namespace mirune
