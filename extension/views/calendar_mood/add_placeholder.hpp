#pragma once

#include "swiftui/view.hpp"

namespace mirune {

/// Stands where a mood can be recorded: a dashed circle with a plus.
struct AddPlaceholder {
  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
