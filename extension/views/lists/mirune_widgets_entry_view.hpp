#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "swiftui/view.hpp"
#include "timelines/entries.hpp"

namespace mirune {

/// What a text of the form "saying;;;;author" is shown as: the saying, an empty line, and "- " with the author. An
/// index outside the list stops the extension, and so does a text without the separator.
std::string shownThought(std::span<const std::string_view> thoughts, std::int64_t index);

/// The quote of the day. Which one it is follows from the day on which it is drawn, whatever the entry's date.
struct Mirune_WidgetsEntryView {
  SimpleEntry entry = {};
  std::span<const std::string_view> thoughts = {};  ///< outlives the view

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
