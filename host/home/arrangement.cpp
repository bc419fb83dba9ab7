#include "home/arrangement.hpp"

#include <algorithm>
#include <tuple>

namespace home {

std::vector<PlacedWidget> arranged(std::vector<PlacedWidget> widgets) {
  std::ranges::sort(widgets, {},
                    [](const PlacedWidget& widget) { return std::tuple(widget.place, widget.position, widget.id); });
  int next = 0;
  for (std::size_t i = 0; i < widgets.size(); ++i) {
    if (i > 0 && widgets[i].place != widgets[i - 1].place) next = 0;
    widgets[i].position = next++;
  }
  return widgets;
}

int endOf(const std::vector<PlacedWidget>& widgets, Place place) {
  return static_cast<int>(std::ranges::count(widgets, place, &PlacedWidget::place));
}

std::vector<PlacedWidget> moved(std::vector<PlacedWidget> widgets, std::int64_t id, int position) {
  widgets = arranged(std::move(widgets));
  const auto widget = std::ranges::find(widgets, id, &PlacedWidget::id);
  if (widget == widgets.end()) return widgets;
  const auto first = std::ranges::find(widgets, widget->place, &PlacedWidget::place);
  const auto target = first + std::clamp(position, 0, endOf(widgets, widget->place) - 1);
  if (widget < target) std::rotate(widget, widget + 1, target + 1);
  if (target < widget) std::rotate(target, widget, widget + 1);
  int next = 0;
  for (auto each = first; each != widgets.end() && each->place == first->place; ++each) each->position = next++;
  return widgets;
}

}  // namespace home
