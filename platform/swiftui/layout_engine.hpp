#pragma once

#include <unordered_map>

#include "swiftui/layout.hpp"

namespace swiftui {

/// Where a child stands in its parent, and what it is proposed there.
struct Placement {
  Point origin = {};
  ProposedSize proposal = {};
  bool isShown = true;
};

/// How one element answers one proposal.
struct LayoutResult {
  Size size = {};
  std::optional<double> firstBaseline = std::nullopt;  ///< from the top; absent where there is no text below
  std::optional<double> lastBaseline = std::nullopt;
  std::vector<Placement> children = {};              ///< one for each child
  std::shared_ptr<const TextLayout> text = nullptr;  ///< of a text
};

/// Measures and places the elements of one tree. Answers are kept, so that asking again costs nothing: a stack asks
/// each child for its smallest and largest size before it shares out its own.
class LayoutEngine {
 public:
  LayoutEngine(const LeafMeasurer& measurer, double displayScale) : measurer_(measurer), displayScale_(displayScale) {}

  const LayoutResult& measure(const Element& element, ProposedSize proposal);
  PlacedElement place(const Element& element, Point origin, ProposedSize proposal, LayoutDirection direction);

  const LeafMeasurer& measurer() const { return measurer_; }
  double displayScale() const { return displayScale_; }

 private:
  struct Key {
    const Element* element = nullptr;
    ProposedSize proposal = {};
    friend bool operator==(const Key&, const Key&) = default;
  };
  struct KeyHash {
    std::size_t operator()(const Key& key) const;
  };

  const LeafMeasurer& measurer_;
  double displayScale_;
  std::unordered_map<Key, LayoutResult, KeyHash> results_;
};

LayoutResult layoutStack(LayoutEngine& engine, const Element& element, const StackElement& stack,
                         ProposedSize proposal);
LayoutResult layoutZStack(LayoutEngine& engine, const Element& element, const ZStackElement& stack,
                          ProposedSize proposal);
LayoutResult layoutFixedFrame(LayoutEngine& engine, const Element& element, const FixedFrame& frame,
                              ProposedSize proposal);
LayoutResult layoutFlexibleFrame(LayoutEngine& engine, const Element& element, const FlexibleFrame& frame,
                                 ProposedSize proposal);

/// Where a size has its guide, from the leading edge or the top.
double guide(HorizontalAlignment alignment, const LayoutResult& result);
double guide(VerticalAlignment alignment, const LayoutResult& result);

/// The answer of an element that has the size and place of its only child, moved by `origin`.
LayoutResult enclosing(const LayoutResult& child, Size size, Point origin, ProposedSize proposal);

/// Takes the baselines of a child that stands `y` below the top: the topmost first one, the bottommost last one.
void inheritBaselines(LayoutResult& result, const LayoutResult& child, double y);

/// Up to the next whole pixel.
double roundedUp(double points, double displayScale);

}  // namespace swiftui
