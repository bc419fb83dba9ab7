#pragma once

#include <cstdint>
#include <vector>

#include "home/placed_widget.hpp"

namespace home {

/// By place and position, with positions from 0 without gaps; of equal positions the lower id comes first.
std::vector<PlacedWidget> arranged(std::vector<PlacedWidget> widgets);

/// The position behind the last widget of a place.
int endOf(const std::vector<PlacedWidget>& widgets, Place place);

/// Arranged, with one widget at another position of its place; a position that there is not is the nearest one. An
/// unknown id moves nothing.
std::vector<PlacedWidget> moved(std::vector<PlacedWidget> widgets, std::int64_t id, int position);

}  // namespace home
