#include "rendering/scene.hpp"

#include "swiftui/overload.hpp"

namespace rendering {
namespace {

using namespace swiftui;

/// The scheme of the first thing that the content paints.
std::optional<ColorScheme> schemeOf(const Element& element) {
  const auto own = std::visit(Overload{
                                  [](const TextElement& text) { return std::optional(text.paint.colorScheme); },
                                  [](const ImageElement& image) { return std::optional(image.paint.colorScheme); },
                                  [](const ShapeElement& shape) { return std::optional(shape.paint.colorScheme); },
                                  [](const auto&) { return std::optional<ColorScheme>(); },
                              },
                              element.value);
  if (own) return own;
  for (const Element& child : element.children) {
    if (const auto scheme = schemeOf(child)) return scheme;
  }
  return std::nullopt;
}

}  // namespace

Scene compose(const ResolvedWidget& widget, const SceneOptions& options, const LeafMeasurer& measurer) {
  Scene scene{.size = options.size,
              .cornerRadius = options.cornerRadius,
              .colorScheme = schemeOf(widget.content).value_or(options.colorScheme)};
  const auto add = [&](const Element& root, Rect bounds) {
    const PlacedElement placed = layout(
        root, {.bounds = bounds, .displayScale = options.displayScale, .direction = options.direction}, measurer);
    record(placed, scene.drawn);
    collectMeaning(placed, scene.meaning);
  };
  if (widget.containerBackground) add(*widget.containerBackground, {.origin = {}, .size = options.size});
  const EdgeInsets& margins = options.margins;
  const double left = options.direction == LayoutDirection::rightToLeft ? margins.trailing : margins.leading;
  add(widget.content, {.origin = {.x = left, .y = margins.top},
                       .size = {.width = options.size.width - margins.leading - margins.trailing,
                                .height = options.size.height - margins.top - margins.bottom}});
  scene.url = widget.url;
  return scene;
}

std::string plainText(const Scene& scene) {
  return plainText(scene.meaning) + (scene.url ? "<" + *scene.url + ">\n" : "");
}

}  // namespace rendering
