#pragma once

#include <string_view>
#include <vector>

#include "home/placed_widget.hpp"

namespace home {

/// Whether one more widget of a family fits. The lock screen holds one line of text above the clock and four columns of
/// small slots below it: a circular widget takes one, a rectangular one two. Everything else always fits.
bool hasRoom(const std::vector<PlacedWidget>& widgets, std::string_view family);

}  // namespace home
