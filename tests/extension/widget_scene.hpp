#pragma once

#include <stdexcept>

#include "catalogue/widgets_bundle.hpp"
#include "drawing.hpp"
#include "widgetkit/widget_drawing.hpp"

namespace mirune {

/// An entry as the host has it drawn, by the widget's short name.
inline rendering::Scene widgetScene(const std::string& shortName, const foundation::JSON& entry,
                                    swiftui::WidgetFamily family, const uikit::Platform& platform) {
  for (const auto& widget : Mirune_WidgetsColl(MIRUNE_SHARE).body(platform)) {
    if (widget.shortName() != shortName) continue;
    return widgetkit::sceneOf(widget, family, entry, platform, 2, realRenderer());
  }
  throw std::runtime_error("no widget " + shortName);
}

}  // namespace mirune
