#include "rendering/meaning.hpp"

#include <algorithm>

namespace rendering {
namespace {

using namespace swiftui;

bool isSaid(const Paint& paint) {
  return paint.isVisible() && !paint.accessibilityHidden;
}

/// The texts below an element, joined to one label.
void appendLabel(const PlacedElement& placed, std::string& label) {
  if (const auto* text = std::get_if<TextElement>(&placed.element->value); text != nullptr && isSaid(text->paint)) {
    if (!label.empty()) label += ", ";
    label += text->content;
  }
  for (const PlacedElement& child : placed.children) appendLabel(child, label);
}

}  // namespace

void collectMeaning(const PlacedElement& placed, Meaning& meaning) {
  if (const auto* toggle = std::get_if<ToggleElement>(&placed.element->value)) {
    MeaningItem item{.role = MeaningItem::Role::checkbox,
                     .label = {},
                     .frame = placed.frame,
                     .isChecked = toggle->meaning.isOn,
                     .intent = toggle->meaning.intent};
    appendLabel(placed, item.label);
    meaning.push_back(std::move(item));
    return;
  }
  if (const auto* text = std::get_if<TextElement>(&placed.element->value)) {
    if (isSaid(text->paint) && !text->content.empty()) {
      meaning.push_back({.role = MeaningItem::Role::text, .label = text->content, .frame = placed.frame});
    }
    return;
  }
  for (const PlacedElement& child : placed.children) collectMeaning(child, meaning);
}

std::string plainText(const Meaning& meaning) {
  const auto onOneLine = [](std::string label) {
    std::ranges::replace_if(label, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return label;
  };
  std::string lines;
  for (const MeaningItem& item : meaning) {
    if (item.role == MeaningItem::Role::checkbox) lines += item.isChecked ? "[x] " : "[ ] ";
    lines += onOneLine(item.label) + "\n";
  }
  return lines;
}

}  // namespace rendering
