#include "messages/world.hpp"

#include "foundation/iso8601.hpp"
#include "messages/fields.hpp"

namespace messages {

using foundation::JSON;

void to_json(JSON& json, const World& world) {
  json = {{"now", foundation::formatMoment(world.now)},
          {"timeZone", world.timeZone},
          {"locale", world.locale},
          {"container", world.container},
          {"screen", world.screen},
          {"systemVersion", world.systemVersion},
          {"appearance", world.appearance},
          {"isRedacted", world.isRedacted},
          {"plannerURL", world.plannerURL}};
}

void from_json(const JSON& json, World& world) {
  world = {.now = momentField(json, "now"),
           .timeZone = field<std::string>(json, "timeZone"),
           .locale = field<std::string>(json, "locale"),
           .container = field<std::string>(json, "container"),
           .screen = field<std::string>(json, "screen"),
           .systemVersion = integerField(json, "systemVersion"),
           .appearance = field<std::string>(json, "appearance"),
           .isRedacted = field<bool>(json, "isRedacted"),
           .plannerURL = field<std::string>(json, "plannerURL")};
}

}  // namespace messages
