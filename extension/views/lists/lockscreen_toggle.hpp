#pragma once

#include <string>

#include "swiftui/view.hpp"

namespace mirune {

/// One task or habit on the lock screen: a check box and its title. A tap marks the item complete.
struct LockscreenToggle {
  std::string id = {};
  std::string text = {};
  foundation::Date date = {};
  int style = 0;

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
