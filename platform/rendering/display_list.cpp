#include "rendering/display_list.hpp"

#include <algorithm>

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

// How masked content looks is nowhere published: pale bars as wide as the lines and a little higher than their
// capitals.
constexpr double maskOpacity = 0.16;
constexpr double pictureMaskOpacity = 0.1;
/// How far a bar reaches beyond the capitals, above and below, of their height.
constexpr double maskMargin = 0.1;

DrawShape mask(Rect frame, double cornerRadius, uikit::RGBA color, double opacity) {
  return {.shape = RoundedRectangle{.cornerRadius = cornerRadius},
          .frame = frame,
          .ink = {.color = color, .opacity = opacity}};
}

void maskText(const PlacedElement& placed, const TextElement& text, DisplayList& list) {
  const DrawText drawn = drawText(placed, text);
  const double capHeight = placed.text->metrics.capHeight;
  const double height = capHeight * (1 + 2 * maskMargin);
  for (std::size_t i = 0; i < drawn.lines.size(); ++i) {
    const double width = placed.text->lines[i].width;
    const Point baseline = drawn.lines[i].origin;
    if (width <= 0) continue;
    const double top = baseline.y - capHeight * (1 + maskMargin);
    list.emplace_back(mask({.origin = {.x = baseline.x, .y = top}, .size = {width, height}}, height / 3,
                           text.paint.color, text.paint.opacity * maskOpacity));
  }
}

/// Whatever its colours: they would tell what it shows.
void maskImage(const PlacedElement& placed, const ImageElement& image, DisplayList& list) {
  const double side = std::min(placed.frame.size.width, placed.frame.size.height);
  const uikit::RGBA label = uikit::resolve(uikit::SystemColor::label, image.paint.colorScheme);
  list.emplace_back(mask(placed.frame, side / 3, label, image.paint.opacity * pictureMaskOpacity));
}

bool isEmpty(Rect frame) {
  return frame.size.width <= 0 || frame.size.height <= 0;
}

}  // namespace

void record(const PlacedElement& placed, DisplayList& list) {
  std::visit(Overload{
                 [&](const TextElement& text) {
                   if (!text.paint.isVisible() || placed.text->shown.empty()) return;
                   if (text.paint.isRedacted) return maskText(placed, text, list);
                   list.emplace_back(drawText(placed, text));
                 },
                 [&](const ImageElement& image) {
                   const bool isInvisible = image.isTemplate() ? !image.paint.isVisible() : image.paint.opacity <= 0;
                   if (isInvisible || isEmpty(placed.frame)) return;
                   if (image.paint.isRedacted) return maskImage(placed, image, list);
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
