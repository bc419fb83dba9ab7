#pragma once

#include <string>

#include "swiftui/view.hpp"

namespace mirune {

/// One task or habit where the system runs no actions: a small box and the title, in the font around it.
struct TodoContent {
  bool on = false;  ///< whether the box shows its tick
  std::string text = {};
  int style = 0;

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
