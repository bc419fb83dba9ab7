#include "rendering/display_list.hpp"

#include "swiftui/overload.hpp"

namespace rendering {
namespace {

using namespace swiftui;

Ink ink(const Paint& paint) {
  return {.color = paint.color, .opacity = paint.opacity};
}

/// Where a line begins within its text, whose width is that of the widest line.
double lineOffset(const TextStyle& style, double textWidth, double lineWidth) {
  const double rest = textWidth - lineWidth;
  const bool isMirrored = style.direction == LayoutDirection::rightToLeft;
  switch (style.alignment) {
    case TextAlignment::leading:
      return isMirrored ? rest : 0;
    case TextAlignment::center:
      return rest / 2;
    case TextAlignment::trailing:
      break;
  }
  return isMirrored ? 0 : rest;
}

DrawText drawText(const PlacedElement& placed, const TextElement& text) {
  const TextLayout& layout = *placed.text;
  DrawText draw{.shown = layout.shown,
                .lines = {},
                .style = text.style,
                .scale = layout.scale,
                .frame = placed.frame,
                .ink = ink(text.paint)};
  double baseline = placed.frame.origin.y + placed.firstBaseline;
  for (const TextLine& line : layout.lines) {
    const double x = placed.frame.origin.x + lineOffset(text.style, placed.frame.size.width, line.width);
    draw.lines.push_back({.content = line.content, .origin = {.x = x, .y = baseline}});
    baseline += layout.metrics.lineHeight();
  }
  return draw;
}

bool isEmpty(Rect frame) {
  return frame.size.width <= 0 || frame.size.height <= 0;
}

}  // namespace

void record(const PlacedElement& placed, DisplayList& list) {
  std::visit(Overload{
                 [&](const TextElement& text) {
                   if (!text.paint.isVisible() || placed.text->shown.empty()) return;
                   list.emplace_back(drawText(placed, text));
                 },
                 [&](const ImageElement& image) {
                   const bool isInvisible = image.isTemplate() ? !image.paint.isVisible() : image.paint.opacity <= 0;
                   if (isInvisible || isEmpty(placed.frame)) return;
                   list.emplace_back(DrawImage{
                       .name = image.name,
                       .isSymbol = image.isSymbol,
                       .folder = image.options.folder,
                       .colorScheme = image.paint.colorScheme,
                       .tint = image.isTemplate() ? std::optional(image.paint.color) : std::nullopt,
                       .frame = placed.frame,
                       .opacity = image.paint.opacity,
                   });
                 },
                 [&](const ShapeElement& shape) {
                   if (!shape.paint.isVisible() || isEmpty(placed.frame)) return;
                   list.emplace_back(DrawShape{.shape = shape.shape,
                                               .stroke = shape.stroke,
                                               .isStrokeInside = shape.isStrokeInside,
                                               .frame = placed.frame,
                                               .ink = ink(shape.paint)});
                 },
                 [](const auto&) {},
             },
             placed.element->value);
  for (const PlacedElement& child : placed.children) record(child, list);
}

}  // namespace rendering
