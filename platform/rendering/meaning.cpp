#include "rendering/meaning.hpp"

namespace rendering {
namespace {

using namespace swiftui;

bool isSaid(const TextElement& text) {
  return text.paint.isVisible() && !text.paint.accessibilityHidden && !text.content.empty();
}

/// The texts below an element, joined to one label.
void appendLabel(const PlacedElement& placed, std::string& label) {
  if (const auto* text = std::get_if<TextElement>(&placed.element->value); text != nullptr && isSaid(*text)) {
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
    if (isSaid(*text)) {
      meaning.push_back({.role = MeaningItem::Role::text, .label = text->content, .frame = placed.frame});
    }
    return;
  }
  for (const PlacedElement& child : placed.children) collectMeaning(child, meaning);
}

std::string plainText(const Meaning& meaning) {
  std::string lines;
  for (const MeaningItem& item : meaning) {
    if (item.role == MeaningItem::Role::checkbox) lines += item.isChecked ? "[x] " : "[ ] ";
    std::string label = item.label;
    for (char& byte : label) {
      if (byte == '\n' || byte == '\r') byte = ' ';
    }
    lines += label + "\n";
  }
  return lines;
}

}  // namespace rendering
