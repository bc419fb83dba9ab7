#include "lists/check_box.hpp"

namespace mirune {

using namespace swiftui;

View checkBoxOutline(int style, double cornerRadius) {
  const Shape outline = style == 0 ? Shape(RoundedRectangle{.cornerRadius = cornerRadius}) : Rectangle{};
  return stroked(outline, {.lineWidth = 1}).opacity(0.7);
}

View checkBoxRow(const ToggleStyleConfiguration& configuration, int style) {
  const View tick = resizableSymbol("checkmark").frame({.width = 9, .height = 9});
  const View box =
      checkBoxOutline(style, 4).frame({.width = 16, .height = 16}).overlay(tick.opacity(configuration.isOn ? 1 : 0));
  return hstack({.spacing = 0}, {box.padding({.trailing = 4}), configuration.label});
}

}  // namespace mirune
