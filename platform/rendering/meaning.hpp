#pragma once

#include <optional>
#include <string>
#include <vector>

#include "foundation/json.hpp"
#include "swiftui/layout.hpp"

namespace rendering {

/// One thing that a reader meets: what it says, where it is, and what it is where it is more than a text.
struct MeaningItem {
  std::string label = {};
  swiftui::Rect frame = {};
  bool isImage = false;
  std::optional<swiftui::Control> control = std::nullopt;
};

/// What a widget says, in reading order. Texts are whole even where the picture cuts them; what cannot be seen is not
/// said, and images without a label are decoration. A link without any text is called by its address.
using Meaning = std::vector<MeaningItem>;

void collectMeaning(const swiftui::PlacedElement& placed, Meaning& meaning);

/// One line for each item: the text, "[ ] label", "[x] label", "label (2 of 5)" or "label <address>". Line breaks
/// within a label become blanks.
std::string plainText(const Meaning& meaning);

}  // namespace rendering
