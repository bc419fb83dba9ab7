#pragma once

#include "swiftui/view.hpp"

namespace mirune {

/// Where a list stands in its widget: at the top, with the same margins for every list, so that their titles are level
/// wherever two of them stand side by side. Less below, for that is where the footer of a full list needs the room.
inline swiftui::View listFrame(const swiftui::View& list) {
  return list
      .frame(
          {.maxWidth = swiftui::infinity, .maxHeight = swiftui::infinity, .alignment = swiftui::Alignment::topLeading})
      .padding({.top = 12, .leading = 16, .bottom = 7, .trailing = 16});
}

}  // namespace mirune
