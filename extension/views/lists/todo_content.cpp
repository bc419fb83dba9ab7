#include "lists/todo_content.hpp"

#include "lists/check_box.hpp"

namespace mirune {

using namespace swiftui;

View TodoContent::body(const EnvironmentValues&) const {
  const View tick = resizableSymbol("checkmark").frame({.width = 6, .height = 6});
  const View box = checkBoxOutline(style, 2.5).frame({.width = 10, .height = 10}).overlay(tick.opacity(on ? 1 : 0));
  return hstack({.spacing = 0}, {box.padding(4), swiftui::text(text).lineLimit(1)});
}

}  // namespace mirune
