#pragma once

#include <vector>

#include "home/placed_widget.hpp"

namespace home {

/// What stands on the screens at the first start: every kind, so that a new user sees them all. Without ids.
std::vector<PlacedWidget> defaultLayout();

}  // namespace home
