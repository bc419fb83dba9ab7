#pragma once

#include <optional>
#include <string>

#include "foundation/date.hpp"
#include "foundation/json_decoder.hpp"

namespace mirune {

/// What kind of item a WidgetData is, by the number that the planner writes.
enum class WidgetDataType { todo = 1, habit = 2, event = 3 };

/// One task, habit or event as the planner exports it. Fields are called as the members of its JSON object.
struct WidgetData {
  WidgetDataType type = WidgetDataType::todo;
  std::string id = {};
  std::string title = {};
  bool isOn = false;       ///< checked off
  std::string calid = {};  ///< of the calendar or list that it belongs to
  foundation::Date starttime = {};
  foundation::Date endtime = {};
  bool allday = false;
  std::optional<std::string> colorHex = std::nullopt;  ///< absent: no colour of its own

  friend bool operator==(const WidgetData&, const WidgetData&) = default;
};

/// A number that is no type is refused.
void decode(foundation::JSONValue& value, WidgetDataType& type);

/// All members but colorHex are required.
void decode(foundation::JSONValue& value, WidgetData& item);

}  // namespace mirune
