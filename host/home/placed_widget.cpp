#include "home/placed_widget.hpp"

namespace home {

std::string_view nameOf(Place place) {
  return place == Place::home ? "home" : "lock";
}

std::optional<Place> placeNamed(std::string_view name) {
  for (const Place place : {Place::home, Place::lock}) {
    if (nameOf(place) == name) return place;
  }
  return std::nullopt;
}

Place placeOfFamily(std::string_view family) {
  return family.starts_with("accessory") ? Place::lock : Place::home;
}

}  // namespace home
