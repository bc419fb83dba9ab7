#include "lists/checklist_toggle_style.hpp"

namespace mirune {

using namespace swiftui;

namespace {

Shape boxOutline(int style) {
  if (style == 0) return RoundedRectangle{.cornerRadius = 4};
  return Rectangle{};
}

}  // namespace

View ChecklistToggleStyle::makeBody(const ToggleStyleConfiguration& configuration) const {
  const View tick = resizableSymbol("checkmark").frame({.width = 9, .height = 9});
  const View box = stroked(boxOutline(style), {.lineWidth = 1})
                       .opacity(0.7)
                       .frame({.width = 16, .height = 16})
                       .overlay(tick.opacity(configuration.isOn ? 1 : 0));
  return hstack({.spacing = 0}, {box.padding({.trailing = 4}), configuration.label});
}

}  // namespace mirune
