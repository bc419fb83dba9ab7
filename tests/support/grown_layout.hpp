#pragma once

#include <cmath>
#include <string_view>

#include "support/fake_measurer.hpp"
#include "support/gardener.hpp"

namespace support {

/// What does not hold of places and those within them; empty where all is well.
inline std::string_view unsoundness(const swiftui::PlacedElement& placed) {
  const swiftui::Rect& frame = placed.frame;
  if (std::isnan(frame.origin.x) || std::isnan(frame.origin.y)) return "a place is a number";
  if (!(frame.size.width >= 0 && frame.size.height >= 0)) return "no size is negative";
  for (const swiftui::PlacedElement& child : placed.children) {
    if (const auto problem = unsoundness(child); !problem.empty()) return problem;
  }
  return {};
}

/// Grows a tree out of the bytes and places it in a room that they choose, too; what does not hold of the places.
inline std::string_view unsoundnessOfLayoutGrownFrom(std::span<const std::uint8_t> bytes) {
  Gardener gardener(bytes);
  const swiftui::Size room{.width = std::abs(gardener.finite()) * 8, .height = std::abs(gardener.finite()) * 8};
  const swiftui::ResolvedWidget widget = swiftui::resolve(gardener.view(4), {});
  const FakeMeasurer measurer;
  const swiftui::PlacedElement placed = swiftui::layout(widget.content, {.bounds = {.size = room}}, measurer);
  if (const auto problem = unsoundness(placed); !problem.empty()) return problem;
  const swiftui::Size taken =
      swiftui::sizeThatFits(widget.content, {.width = room.width, .height = room.height}, 2, measurer);
  return taken == placed.frame.size ? "" : "a parent keeps the size that its child chose";
}

}  // namespace support
