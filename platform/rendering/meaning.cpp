#include "rendering/meaning.hpp"

#include <algorithm>
#include <cmath>

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

std::string wholeNumber(double value) {
  return std::to_string(std::llround(value));
}

}  // namespace

void collectMeaning(const PlacedElement& placed, Meaning& meaning) {
  if (const auto* element = std::get_if<ControlElement>(&placed.element->value)) {
    MeaningItem item{.label = {}, .frame = placed.frame, .control = element->control};
    appendLabel(placed, item.label);
    meaning.push_back(std::move(item));
    return;
  }
  if (const auto* text = std::get_if<TextElement>(&placed.element->value)) {
    if (isSaid(*text)) {
      meaning.push_back({.label = text->content, .frame = placed.frame});
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
    const auto* toggle = item.control ? std::get_if<ToggleMeaning>(&*item.control) : nullptr;
    const auto* gauge = item.control ? std::get_if<GaugeMeaning>(&*item.control) : nullptr;
    if (toggle != nullptr) lines += toggle->isOn ? "[x] " : "[ ] ";
    lines += onOneLine(item.label);
    if (gauge != nullptr) lines += " (" + wholeNumber(gauge->value) + " of " + wholeNumber(gauge->total) + ")";
    lines += "\n";
  }
  return lines;
}

}  // namespace rendering
