#pragma once

#include <string_view>

namespace host {

/// Why a widget is asked for a timeline.
enum class RequestReason {
  first,         ///< nothing is known of it yet
  endReached,    ///< the date of its last entry has come
  dateNamed,     ///< the date that it named has come
  nextMidnight,  ///< its rule names no moment to come: a day later it may have more to say
  retry,         ///< the last request failed
  tap,           ///< an action of the widget has run
  files,         ///< the container has changed
  timeZone,      ///< the time zone has changed
};

/// For people: "first request", "end of the timeline", …
std::string_view textOf(RequestReason reason);

}  // namespace host
