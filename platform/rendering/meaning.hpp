#pragma once

#include <string>
#include <vector>

#include "appintents/app_intent.hpp"
#include "foundation/json.hpp"
#include "swiftui/layout.hpp"

namespace rendering {

/// One thing that a reader meets: what it is, what it says, where it is.
struct MeaningItem {
  enum class Role { text, checkbox };

  Role role = Role::text;
  std::string label = {};
  swiftui::Rect frame = {};
  bool isChecked = false;               ///< of a check box
  appintents::BoundIntent intent = {};  ///< what a tap on a check box performs
};

/// What a widget says, in reading order. Texts are whole even where the picture cuts them; what cannot be seen is not
/// said.
using Meaning = std::vector<MeaningItem>;

void collectMeaning(const swiftui::PlacedElement& placed, Meaning& meaning);

/// One line for each item: the text, or "[ ] label", "[x] label"; line breaks within one become blanks.
std::string plainText(const Meaning& meaning);

}  // namespace rendering
