#pragma once

#include <memory>
#include <string>
#include <vector>

#include "swiftui/element.hpp"
#include "swiftui/leaf_measurer.hpp"

// How a tree gets its places: a parent proposes a size to its child, the child answers with the size that it takes, and
// the parent, who has to accept it, says where the child stands. Proposals run down, sizes up, places down again.

namespace swiftui {

/// An element at its place. Refers to the element, which must outlive it.
struct PlacedElement {
  const Element* element = nullptr;
  Rect frame = {};                                   ///< in the root's coordinates, not rounded to pixels
  std::shared_ptr<const TextLayout> text = nullptr;  ///< for a text: how it is broken
  double firstBaseline = 0;                          ///< for a text: from the frame's top
  std::vector<PlacedElement> children = {};          ///< in painting order
  std::shared_ptr<const Element> content = nullptr;  ///< of a geometry reader: what its child refers to
};

struct LayoutOptions {
  Rect bounds = {};         ///< the root is proposed this size, and centred in it
  double displayScale = 2;  ///< pixels per point: sizes of texts are rounded up to whole pixels
  LayoutDirection direction = LayoutDirection::leftToRight;
};

PlacedElement layout(const Element& root, const LayoutOptions& options, const LeafMeasurer& measurer);

/// The size that an element takes when it is proposed one.
Size sizeThatFits(const Element& root, ProposedSize proposal, double displayScale, const LeafMeasurer& measurer);

}  // namespace swiftui
