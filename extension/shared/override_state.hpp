#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/date.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// The items that were ticked on a widget, by id, with the date that the widget gave. Which date it is does not matter:
/// an item that is here counts as done.
using OverrideState = std::map<std::string, foundation::Date>;

/// The two files of the container that hold the state. Both are written alike; timelines read the second one.
inline constexpr std::string_view overrideFile = "interactive-widgets-state.json";
inline constexpr std::string_view timelineOverrideFile = "interactive-widgets-state2.json";

/// A JSON object from id to ISO 8601 date, without fractions of seconds.
std::string encodeOverrideState(const OverrideState& state);
/// Nothing where the text is anything else.
std::optional<OverrideState> decodeOverrideState(std::string_view bytes);

/// The state as timelines see it, read afresh; empty where the file is missing or does not decode. What was read goes
/// to the debug log.
OverrideState readOverrideState(const uikit::Platform& platform);

/// What ids of items are compared by: a UUID in upper case, every other text as it is. A widget's row carries the UUID,
/// which prints in upper case, while the planner may write lower case.
std::string comparableID(std::string_view id);

/// Looks items up in an override state, by their comparable ids.
class OverrideLookup {
 public:
  explicit OverrideLookup(const OverrideState& state);
  bool contains(std::string_view id) const;

 private:
  std::vector<std::string> ids_;  ///< comparable, sorted
};

}  // namespace mirune
