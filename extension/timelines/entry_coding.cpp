#include "timelines/entry_coding.hpp"

namespace mirune {

void to_json(foundation::JSON& json, const EventList& events) {
  json = foundation::JSON::array();
  for (const EventWidgetInner& event : events) json.push_back(event);
}

void from_json(const foundation::JSON& json, EventList& events) {
  events = EventList(json.get<std::vector<EventWidgetInner>>());
}

}  // namespace mirune
