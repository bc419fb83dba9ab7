#include "swiftui/widget_family.hpp"

#include <algorithm>

namespace swiftui {

std::string_view nameOf(WidgetFamily family) {
  return widgetFamilies.at(static_cast<std::size_t>(family)).second;
}

std::optional<WidgetFamily> widgetFamilyNamed(std::string_view name) {
  const auto* row = std::ranges::find(widgetFamilies, name, [](const auto& pair) { return pair.second; });
  if (row == widgetFamilies.end()) return std::nullopt;
  return row->first;
}

}  // namespace swiftui
