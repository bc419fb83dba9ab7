#include "rendering/meaning.hpp"

#include <algorithm>
#include <cmath>

namespace rendering {
namespace {

using namespace swiftui;

bool isSaid(const TextElement& text) {
  return text.paint.isVisible() && !text.paint.accessibilityHidden && !text.paint.isRedacted && !text.content.empty();
}

bool isSaid(const ImageElement& image) {
  return image.paint.opacity > 0 && !image.paint.accessibilityHidden && !image.paint.isRedacted &&
         !image.options.label.empty();
}

/// What an element says by itself; null for nothing.
const std::string* saidBy(const Element& element) {
  if (const auto* labelled = std::get_if<AccessibilityLabelElement>(&element.value)) return &labelled->label;
  if (const auto* text = std::get_if<TextElement>(&element.value)) return isSaid(*text) ? &text->content : nullptr;
  if (const auto* image = std::get_if<ImageElement>(&element.value)) {
    return isSaid(*image) ? &image->options.label : nullptr;
  }
  return nullptr;
}

/// What is said below an element, joined to one label.
void appendLabel(const PlacedElement& placed, std::string& label) {
  if (const auto* said = saidBy(*placed.element)) {
    if (!label.empty()) label += ", ";
    label += *said;
    return;
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
    const auto* link = std::get_if<LinkMeaning>(&element->control);
    if (link != nullptr && item.label.empty()) item.label = link->url;
    meaning.push_back(std::move(item));
    return;
  }
  if (const auto* said = saidBy(*placed.element)) {
    const bool isImage = std::holds_alternative<ImageElement>(placed.element->value);
    meaning.push_back({.label = *said, .frame = placed.frame, .isImage = isImage});
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
    const auto* link = item.control ? std::get_if<LinkMeaning>(&*item.control) : nullptr;
    if (toggle != nullptr) lines += toggle->isOn ? "[x] " : "[ ] ";
    lines += onOneLine(item.label);
    if (gauge != nullptr) lines += " (" + wholeNumber(gauge->value) + " of " + wholeNumber(gauge->total) + ")";
    if (link != nullptr) lines += " <" + link->url + ">";
    lines += "\n";
  }
  return lines;
}

}  // namespace rendering
