#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "swiftui/alignment.hpp"

namespace rendering {

/// A part of a line that is written in one direction.
struct DirectedPart {
  std::size_t start = 0;  ///< bytes
  std::size_t end = 0;
  bool runsToTheLeft = false;
};

/// The parts of a line as they stand from left to right. The first letter with a direction of its own decides which
/// side the line begins at; where there is none, the given one does.
std::vector<DirectedPart> directedParts(std::string_view line, swiftui::LayoutDirection otherwise);

}  // namespace rendering
