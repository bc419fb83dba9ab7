#pragma once

#include <string>

#include "foundation/date.hpp"
#include "foundation/json.hpp"

namespace messages {

/// What the device is like while one request is answered. Everything that a widget may ask of the world travels here,
/// so that any answer can be had again. Texts are as the user gave them; the extension checks them.
struct World {
  foundation::Date now = {};
  std::string timeZone = "UTC";                        ///< "Europe/Berlin"
  std::string locale = "en_US";                        ///< "de_DE"
  std::string container = {};                          ///< the app group's folder; may be missing
  std::string screen = "390x844";                      ///< WIDTHxHEIGHT in points, portrait
  int systemVersion = 17;                              ///< the platform's major version
  std::string appearance = "light";                    ///< what the system is set to: "light" or "dark"
  bool isRedacted = false;                             ///< texts and pictures are masked
  std::string plannerURL = "https://planner.example";  ///< where the planner's pages are: what links lead to

  friend bool operator==(const World&, const World&) = default;
};

void to_json(foundation::JSON& json, const World& world);
void from_json(const foundation::JSON& json, World& world);

}  // namespace messages
