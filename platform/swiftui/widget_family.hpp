#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace swiftui {

/// The size classes of widgets.
enum class WidgetFamily {
  systemSmall,
  systemMedium,
  systemLarge,
  systemExtraLarge,
  accessoryCircular,
  accessoryRectangular,
  accessoryInline,
};

/// All of them with their names, in order.
inline constexpr std::array<std::pair<WidgetFamily, std::string_view>, 7> widgetFamilies{{
    {WidgetFamily::systemSmall, "systemSmall"},
    {WidgetFamily::systemMedium, "systemMedium"},
    {WidgetFamily::systemLarge, "systemLarge"},
    {WidgetFamily::systemExtraLarge, "systemExtraLarge"},
    {WidgetFamily::accessoryCircular, "accessoryCircular"},
    {WidgetFamily::accessoryRectangular, "accessoryRectangular"},
    {WidgetFamily::accessoryInline, "accessoryInline"},
}};

std::string_view nameOf(WidgetFamily family);
std::optional<WidgetFamily> widgetFamilyNamed(std::string_view name);

/// Whether the family stands on the lock screen rather than on the home screen.
constexpr bool isAccessory(WidgetFamily family) {
  return family >= WidgetFamily::accessoryCircular;
}

}  // namespace swiftui
