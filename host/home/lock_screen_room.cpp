#include "home/lock_screen_room.hpp"

namespace home {

namespace {

/// What a family takes of the lock screen, or how much there is.
struct Room {
  int lines = 0;
  int columns = 0;
};

constexpr Room lockScreen = {.lines = 1, .columns = 4};

Room roomOf(std::string_view family) {
  if (family == "accessoryInline") return {.lines = 1};
  if (family == "accessoryCircular") return {.columns = 1};
  if (family == "accessoryRectangular") return {.columns = 2};
  return {};
}

}  // namespace

bool hasRoom(const std::vector<PlacedWidget>& widgets, std::string_view family) {
  const Room wanted = roomOf(family);
  Room taken;
  for (const PlacedWidget& widget : widgets) {
    if (widget.place != Place::lock) continue;
    const Room room = roomOf(widget.family);
    taken = {.lines = taken.lines + room.lines, .columns = taken.columns + room.columns};
  }
  // What another version placed may be more than fits; that is no reason to refuse what takes nothing of it.
  return (wanted.lines == 0 || taken.lines + wanted.lines <= lockScreen.lines) &&
         (wanted.columns == 0 || taken.columns + wanted.columns <= lockScreen.columns);
}

}  // namespace home
