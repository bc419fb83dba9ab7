#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace home {

/// Where a widget can be placed.
enum class Place {
  home,  ///< the home screen: families that begin with "system"
  lock,  ///< the lock screen: families that begin with "accessory"
};

/// "home", "lock"
std::string_view nameOf(Place place);
std::optional<Place> placeNamed(std::string_view name);

/// The place that a family stands on.
Place placeOfFamily(std::string_view family);

/// A widget that somebody put on a screen. Kind and family may be ones that this version does not know.
struct PlacedWidget {
  std::int64_t id = 0;      ///< never given to another widget, not even after this one was removed
  std::string kind = {};    ///< "Mirune_Widgets2"
  std::string family = {};  ///< "systemSmall"
  Place place = Place::home;
  int position = 0;  ///< in reading order within its place, from 0 without gaps

  friend bool operator==(const PlacedWidget&, const PlacedWidget&) = default;
};

}  // namespace home
