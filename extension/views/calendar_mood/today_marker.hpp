#pragma once

#include "swiftui/view.hpp"

namespace mirune {

/// The circle behind today's number: wider than the cell that it is the background of, so that it reaches into the
/// spacing around.
struct TodayMarker {
  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
