#include "lists/line.hpp"

namespace mirune {

swiftui::Path Line::path(const swiftui::Rect& rect) {
  const auto [x, y] = rect.origin;
  return {{.x = x, .y = y}, {.x = x + rect.size.width, .y = y}};
}

}  // namespace mirune
