#include <algorithm>
#include <cmath>
#include <numeric>

#include "swiftui/layout_engine.hpp"
#include "swiftui/overload.hpp"
#include "swiftui/spacing.hpp"

namespace swiftui {
namespace {

/// Lengths along a stack's axis ("major") and across it ("minor").
struct Axes {
  Axis axis;

  double major(Size size) const { return axis == Axis::horizontal ? size.width : size.height; }
  double minor(Size size) const { return axis == Axis::horizontal ? size.height : size.width; }
  std::optional<double> major(ProposedSize size) const { return axis == Axis::horizontal ? size.width : size.height; }
  std::optional<double> minor(ProposedSize size) const { return axis == Axis::horizontal ? size.height : size.width; }
  template <class Result, class Length>
  Result make(Length major, Length minor) const {
    return axis == Axis::horizontal ? Result{major, minor} : Result{minor, major};
  }
  double guideAcross(const Alignment& alignment, const LayoutResult& result) const {
    return axis == Axis::horizontal ? guide(alignment.vertical, result) : guide(alignment.horizontal, result);
  }
};

/// Spacers come last of all; a priority is seen through what only draws or pins, not through padding and frames.
double priorityOf(const Element& element) {
  return std::visit(Overload{
                        [](const SpacerElement&) { return -infinity; },
                        [](const LayoutPriorityElement& priority) { return priority.priority; },
                        [&](const FixedSizeElement&) { return priorityOf(element.children.front()); },
                        [&](const LayerElement&) { return priorityOf(element.children.front()); },
                        [&](const OffsetElement&) { return priorityOf(element.children.front()); },
                        [&](const ControlElement&) { return priorityOf(element.children.front()); },
                        [&](const AccessibilityLabelElement&) { return priorityOf(element.children.front()); },
                        [](const auto&) { return 0.0; },
                    },
                    element.value);
}

/// A child as the stack sees it while it shares out its length.
struct Share {
  std::size_t index = 0;
  double priority = 0;
  double min = 0;
  double max = 0;

  /// How much it can give way; without end also where its smallest length has none.
  double flexibility() const { return std::isinf(max) ? infinity : max - min; }
};

/// Who is asked first: the higher priority, then the less flexible; of two that stretch without end the one that needs
/// more.
bool isAskedBefore(const Share& a, const Share& b) {
  if (a.priority != b.priority) return a.priority > b.priority;
  if (a.flexibility() != b.flexibility()) return a.flexibility() < b.flexibility();
  return std::isinf(a.max) && a.min > b.min;
}

class StackLayout {
 public:
  StackLayout(LayoutEngine& engine, const Element& element, const StackElement& stack)
      : engine_(engine), children_(element.children), axes_{stack.axis}, alignment_(stack.alignment) {
    for (std::size_t i = 1; i < children_.size(); ++i) {
      gaps_.push_back(stack.spacing ? *stack.spacing
                                    : defaultSpacing(children_[i - 1], children_[i], stack.axis, engine));
    }
  }

  LayoutResult run(std::optional<double> major, std::optional<double> minor) {
    const std::vector<std::optional<double>> offers =
        major ? share(*major, minor) : std::vector<std::optional<double>>(children_.size());
    LayoutResult result;
    double guideLine = 0;
    double behindGuide = 0;
    for (std::size_t i = 0; i < children_.size(); ++i) {
      const LayoutResult& child = measure(i, offers[i], minor);
      const double guide = axes_.guideAcross(alignment_, child);
      guideLine = std::max(guideLine, guide);
      behindGuide = std::max(behindGuide, axes_.minor(child.size) - guide);
    }
    double position = 0;
    for (std::size_t i = 0; i < children_.size(); ++i) {
      const LayoutResult& child = measure(i, offers[i], minor);
      if (i > 0) position += gaps_[i - 1];
      const auto origin = axes_.make<Point>(position, guideLine - axes_.guideAcross(alignment_, child));
      result.children.push_back({.origin = origin, .proposal = axes_.make<ProposedSize>(offers[i], minor)});
      inheritBaselines(result, child, origin.y);
      position += axes_.major(child.size);
    }
    // Children that overlap by more than they are long leave the stack no length.
    result.size = axes_.make<Size>(std::max(0.0, position), guideLine + behindGuide);
    return result;
  }

 private:
  const LayoutResult& measure(std::size_t index, std::optional<double> major, std::optional<double> minor) {
    return engine_.measure(children_[index], axes_.make<ProposedSize>(major, minor));
  }

  /// What each child is offered of the length.
  std::vector<std::optional<double>> share(double length, std::optional<double> minor) {
    double available = length - std::accumulate(gaps_.begin(), gaps_.end(), 0.0);
    std::vector<Share> shares;
    for (std::size_t i = 0; i < children_.size(); ++i) {
      shares.push_back({.index = i,
                        .priority = priorityOf(children_[i]),
                        .min = axes_.major(measure(i, 0.0, minor).size),
                        .max = axes_.major(measure(i, infinity, minor).size)});
    }
    std::ranges::stable_sort(shares, isAskedBefore);

    std::vector<std::optional<double>> offers(children_.size());
    double reserved = 0;
    for (const Share& share : shares) reserved += share.min;
    for (auto group = shares.begin(); group != shares.end();) {
      const auto end = std::find_if(group, shares.end(), [&](const Share& s) { return s.priority != group->priority; });
      for (auto share = group; share != end; ++share) reserved -= share->min;
      for (auto share = group; share != end; ++share) {
        const double offer = std::max(0.0, (available - reserved) / static_cast<double>(std::distance(share, end)));
        offers[share->index] = offer;
        const double taken = axes_.major(measure(share->index, offer, minor).size);
        if (std::isfinite(available)) available -= taken;
      }
      group = end;
    }
    return offers;
  }

  LayoutEngine& engine_;
  const std::vector<Element>& children_;
  Axes axes_;
  Alignment alignment_;
  std::vector<double> gaps_;
};

}  // namespace

LayoutResult layoutStack(LayoutEngine& engine, const Element& element, const StackElement& stack,
                         ProposedSize proposal) {
  StackLayout layout(engine, element, stack);
  const Axes axes{stack.axis};
  const auto major = axes.major(proposal);
  const auto minor = axes.minor(proposal);
  LayoutResult result = layout.run(major, minor);
  if (!minor) {
    // The children learn how wide the stack came out when they are placed; its size stays as it was found.
    const Size size = result.size;
    result = layout.run(major, axes.minor(size));
    result.size = size;
  }
  return result;
}

LayoutResult layoutZStack(LayoutEngine& engine, const Element& element, const ZStackElement& stack,
                          ProposedSize proposal) {
  double highest = -infinity;
  for (const Element& child : element.children) highest = std::max(highest, priorityOf(child));
  LayoutResult result;
  for (const Element& child : element.children) {
    if (priorityOf(child) < highest) continue;
    const Size size = engine.measure(child, proposal).size;
    result.size = {.width = std::max(result.size.width, size.width),
                   .height = std::max(result.size.height, size.height)};
  }
  const ProposedSize offered = ProposedSize::of(result.size);
  const LayoutResult self{.size = result.size};
  for (const Element& child : element.children) {
    const LayoutResult& answer = engine.measure(child, offered);
    const double y = guide(stack.alignment.vertical, self) - guide(stack.alignment.vertical, answer);
    result.children.push_back(
        {.origin = {.x = guide(stack.alignment.horizontal, self) - guide(stack.alignment.horizontal, answer), .y = y},
         .proposal = offered});
    inheritBaselines(result, answer, y);
  }
  return result;
}

}  // namespace swiftui
