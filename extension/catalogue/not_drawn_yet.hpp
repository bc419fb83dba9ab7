#pragma once

#include <string>

#include "swiftui/view.hpp"
#include "widgetkit/static_configuration.hpp"

namespace mirune {

/// Stands for a view that is not there yet: drawing it is refused with a message that says so.
struct NotDrawnYet {
  std::string widget = {};

  swiftui::View body(const swiftui::EnvironmentValues&) const {
    throw widgetkit::DrawingError(widget + ": drawing this widget is not there yet");
  }
};

}  // namespace mirune
