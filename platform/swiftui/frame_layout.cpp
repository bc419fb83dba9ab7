#include <cmath>

#include "swiftui/layout_engine.hpp"

namespace swiftui {
namespace {

/// A length that a frame may have; others are as if not given.
std::optional<double> usable(std::optional<double> length) {
  return length && std::isfinite(*length) && *length >= 0 ? length : std::nullopt;
}

Point aligned(const Alignment& alignment, Size frame, const LayoutResult& child) {
  // Of the frame itself only the plain guides count; a text's baseline aligned to a frame stands at its bottom.
  const LayoutResult self{.size = frame};
  return {.x = guide(alignment.horizontal, self) - guide(alignment.horizontal, child),
          .y = guide(alignment.vertical, self) - guide(alignment.vertical, child)};
}

struct Limits {
  std::optional<double> min;
  std::optional<double> ideal;
  std::optional<double> max;
};

/// Only the upper limit may be endless.
Limits usable(std::optional<double> min, std::optional<double> ideal, std::optional<double> max) {
  return {.min = usable(min), .ideal = usable(ideal), .max = max == infinity ? max : usable(max)};
}

double clamped(double length, const Limits& limits) {
  // The lower limit wins over the upper one.
  return std::max(limits.min.value_or(0), std::min(limits.max.value_or(infinity), length));
}

std::optional<double> offeredBy(std::optional<double> proposal, const Limits& limits) {
  const std::optional<double> wanted = proposal ? proposal : limits.ideal;
  return wanted ? std::optional(clamped(*wanted, limits)) : std::nullopt;
}

double lengthOf(std::optional<double> proposal, double child, const Limits& limits) {
  if (!proposal) return limits.ideal ? clamped(*limits.ideal, limits) : clamped(child, limits);
  if (limits.min && limits.max) return clamped(*proposal, limits);
  if (limits.max) return std::min(std::max(child, *proposal), *limits.max);
  if (limits.min) return std::max(std::min(child, *proposal), *limits.min);
  return child;
}

}  // namespace

LayoutResult layoutFixedFrame(LayoutEngine& engine, const Element& element, const FixedFrame& frame,
                              ProposedSize proposal) {
  const auto width = usable(frame.width);
  const auto height = usable(frame.height);
  const ProposedSize inner{.width = width ? width : proposal.width, .height = height ? height : proposal.height};
  const LayoutResult& child = engine.measure(element.children.front(), inner);
  const Size size{.width = width.value_or(child.size.width), .height = height.value_or(child.size.height)};
  return enclosing(child, size, aligned(frame.alignment, size, child), inner);
}

LayoutResult layoutFlexibleFrame(LayoutEngine& engine, const Element& element, const FlexibleFrame& frame,
                                 ProposedSize proposal) {
  const Limits horizontal = usable(frame.minWidth, frame.idealWidth, frame.maxWidth);
  const Limits vertical = usable(frame.minHeight, frame.idealHeight, frame.maxHeight);
  const ProposedSize inner{.width = offeredBy(proposal.width, horizontal),
                           .height = offeredBy(proposal.height, vertical)};
  const LayoutResult& child = engine.measure(element.children.front(), inner);
  const Size size{.width = lengthOf(proposal.width, child.size.width, horizontal),
                  .height = lengthOf(proposal.height, child.size.height, vertical)};
  return enclosing(child, size, aligned(frame.alignment, size, child), inner);
}

}  // namespace swiftui
