#pragma once

#include "catalogue/widgets_bundle.hpp"
#include "drawing.hpp"
#include "widgetkit/widget_drawing.hpp"

namespace mirune {

/// A planner with four tasks, no habits, four events and moods on some days, on Saturday, 21 November 2026.
class FilledPlanner : public Planner {
 public:
  explicit FilledPlanner(int theme = 0) {
    auto events = nlohmann::json::array();
    auto tasks = nlohmann::json::array();
    for (int number = 1; number <= 4; ++number) {
      tasks.push_back(item(number));
      events.push_back(item(number + 4, 3));
    }
    events[0]["allday"] = true;
    events[0]["title"] = "Grandma visits";
    write("tasks.json", {{"2026/11/21", tasks}});
    write("events.json", {{"2026/11/21", events}});
    const nlohmann::json calm = {{"id", idNumber(9)},  {"name", "Calm"},           {"icon", "cat-circle_calm"},
                                 {"color", "#7DBF9E"}, {"isOriginalColor", false}, {"hasBeenDeleted", false}};
    write("moods.json", {{"2026/11/02", calm}, {"2026/11/20", calm}, {"2026/11/21", calm}});
    writeSettings({{"app_theme_mode", theme}});
  }
};

struct DrawnWidget {
  std::string name;  ///< "tasks systemSmall"
  swiftui::WidgetFamily family = swiftui::WidgetFamily::systemSmall;
  rendering::Scene scene;
};

/// Every kind in every family that it offers, as the host has it drawn.
inline std::vector<DrawnWidget> everyWidget(const uikit::Platform& platform) {
  std::vector<DrawnWidget> drawn;
  realRenderer();
  for (const auto& widget : Mirune_WidgetsColl(MIRUNE_SHARE).body(platform)) {
    const auto entry = widget.entries(platform, messages::ProviderOperation::snapshot).entries.at(0);
    for (const auto family : widget.families()) {
      drawn.push_back({.name = widget.shortName() + " " + std::string(swiftui::nameOf(family)),
                       .family = family,
                       .scene = widgetkit::sceneOf(widget, family, entry, platform, 2, realRenderer())});
    }
  }
  return drawn;
}

}  // namespace mirune
