#include "swiftui/layout_engine.hpp"

#include <cmath>
#include <functional>

#include "swiftui/overload.hpp"

namespace swiftui {
namespace {

/// What a shape or a colour takes where it is asked for its ideal length; the platform's figure.
constexpr double idealShapeLength = 10;
/// The least length of a spacer without one of its own; the platform's figure.
constexpr double defaultSpacerLength = 8;

double roundedToPixel(double points, double scale) {
  return std::round(points * scale) / scale;
}

LayoutResult layoutText(const LayoutEngine& engine, const TextElement& text, ProposedSize proposal) {
  auto layout = std::make_shared<const TextLayout>(engine.measurer().layoutText(text.content, text.style, proposal));
  const double scale = engine.displayScale();
  // A text does not outgrow its proposal, be it by rounding or by a letter that is too wide for any line.
  const double limit = std::max(0.0, proposal.width.value_or(infinity));
  const double ascent = layout->metrics.ascent;
  const double aboveLastLine = layout->height() - layout->metrics.lineHeight();
  return {.size = {.width = std::min(roundedUp(layout->width(), scale), limit),
                   .height = roundedUp(layout->height(), scale)},
          .firstBaseline = roundedToPixel(ascent, scale),
          .lastBaseline = roundedUp(aboveLastLine + ascent, scale),
          .children = {},
          .text = std::move(layout)};
}

LayoutResult layoutImage(const LayoutEngine& engine, const ImageElement& image, ProposedSize proposal) {
  if (image.isResizable && proposal.width && proposal.height) return {.size = {*proposal.width, *proposal.height}};
  const Size own = engine.measurer().imageSize(image);
  if (!image.isResizable) return {.size = own};
  return {.size = {.width = proposal.width.value_or(own.width), .height = proposal.height.value_or(own.height)}};
}

LayoutResult layoutShape(const ShapeElement& shape, ProposedSize proposal) {
  Size size{.width = proposal.width.value_or(idealShapeLength), .height = proposal.height.value_or(idealShapeLength)};
  if (std::holds_alternative<Circle>(shape.shape) || std::holds_alternative<Arc>(shape.shape)) {
    size.width = size.height = std::min(size.width, size.height);
  }
  return {.size = size};
}

LayoutResult layoutSpacer(const SpacerElement& spacer, ProposedSize proposal) {
  const double least = std::max(0.0, spacer.minLength.value_or(defaultSpacerLength));
  const auto length = [&](Axis axis, std::optional<double> proposed) {
    return spacer.axis.value_or(axis) == axis ? std::max(least, proposed.value_or(least)) : 0;
  };
  return {
      .size = {.width = length(Axis::horizontal, proposal.width), .height = length(Axis::vertical, proposal.height)}};
}

LayoutResult layoutPadding(LayoutEngine& engine, const Element& element, const EdgeInsets& insets,
                           ProposedSize proposal) {
  const double horizontal = insets.leading + insets.trailing;
  const double vertical = insets.top + insets.bottom;
  const auto less = [](std::optional<double> length, double inset) {
    return length ? std::optional(std::max(0.0, *length - inset)) : std::nullopt;
  };
  const ProposedSize inner{.width = less(proposal.width, horizontal), .height = less(proposal.height, vertical)};
  const LayoutResult& child = engine.measure(element.children.front(), inner);
  return enclosing(
      child,
      {.width = std::max(0.0, child.size.width + horizontal), .height = std::max(0.0, child.size.height + vertical)},
      {.x = insets.leading, .y = insets.top}, inner);
}

LayoutResult layoutLayer(LayoutEngine& engine, const Element& element, const LayerElement& layer,
                         ProposedSize proposal) {
  LayoutResult result = engine.measure(element.children[0], proposal);
  result.text = nullptr;
  const ProposedSize offered = ProposedSize::of(result.size);
  const LayoutResult& secondary = engine.measure(element.children[1], offered);
  const Point origin{.x = guide(layer.alignment.horizontal, result) - guide(layer.alignment.horizontal, secondary),
                     .y = guide(layer.alignment.vertical, result) - guide(layer.alignment.vertical, secondary)};
  result.children = {{.origin = {}, .proposal = proposal}, {.origin = origin, .proposal = offered}};
  return result;
}

LayoutResult transparent(LayoutEngine& engine, const Element& element, ProposedSize proposal, Point origin = {}) {
  const LayoutResult& child = engine.measure(element.children.front(), proposal);
  LayoutResult result = enclosing(child, child.size, {}, proposal);
  result.children.front().origin = origin;
  return result;
}

bool fits(Size ideal, ProposedSize proposal) {
  return ideal.width <= proposal.width.value_or(infinity) && ideal.height <= proposal.height.value_or(infinity);
}

LayoutResult layoutViewThatFits(LayoutEngine& engine, const Element& element, ProposedSize proposal) {
  if (element.children.empty()) return {};
  std::size_t chosen = 0;
  while (chosen + 1 < element.children.size() && !fits(engine.measure(element.children[chosen], {}).size, proposal)) {
    ++chosen;
  }
  const LayoutResult& child = engine.measure(element.children[chosen], proposal);
  LayoutResult result = enclosing(child, child.size, {}, proposal);
  Placement shown = result.children.front();
  result.children.assign(element.children.size(), {.isShown = false});
  result.children[chosen] = shown;
  return result;
}

LayoutResult answer(LayoutEngine& engine, const Element& element, ProposedSize proposal) {
  return std::visit(
      Overload{
          [&](const TextElement& text) { return layoutText(engine, text, proposal); },
          [&](const ImageElement& image) { return layoutImage(engine, image, proposal); },
          [&](const ShapeElement& shape) { return layoutShape(shape, proposal); },
          [&](const SpacerElement& spacer) { return layoutSpacer(spacer, proposal); },
          [&](const StackElement& stack) { return layoutStack(engine, element, stack, proposal); },
          [&](const ZStackElement& stack) { return layoutZStack(engine, element, stack, proposal); },
          [&](const PaddingElement& padding) { return layoutPadding(engine, element, padding.insets, proposal); },
          [&](const FixedFrameElement& frame) { return layoutFixedFrame(engine, element, frame.frame, proposal); },
          [&](const FlexibleFrameElement& frame) {
            return layoutFlexibleFrame(engine, element, frame.frame, proposal);
          },
          [&](const FixedSizeElement& fixed) {
            return transparent(engine, element,
                               {.width = fixed.horizontal ? std::nullopt : proposal.width,
                                .height = fixed.vertical ? std::nullopt : proposal.height});
          },
          [&](const LayoutPriorityElement&) { return transparent(engine, element, proposal); },
          [&](const OffsetElement& offset) { return transparent(engine, element, proposal, offset.offset); },
          [&](const LayerElement& layer) { return layoutLayer(engine, element, layer, proposal); },
          [&](const ControlElement&) { return transparent(engine, element, proposal); },
          [&](const AccessibilityLabelElement&) { return transparent(engine, element, proposal); },
          [&](const ViewThatFitsElement&) { return layoutViewThatFits(engine, element, proposal); },
          [&](const GeometryReaderElement&) {
            return LayoutResult{.size = {.width = proposal.width.value_or(0), .height = proposal.height.value_or(0)}};
          },
      },
      element.value);
}

bool paintsSecondChildFirst(const Element& element) {
  const auto* layer = std::get_if<LayerElement>(&element.value);
  return layer != nullptr && layer->isBehind;
}

}  // namespace

double roundedUp(double points, double displayScale) {
  // What is a whole number of pixels but for the error of computing stays so.
  constexpr double tolerance = 1e-6;
  return std::ceil(points * displayScale - tolerance) / displayScale;
}

double guide(HorizontalAlignment alignment, const LayoutResult& result) {
  switch (alignment) {
    case HorizontalAlignment::leading:
      return 0;
    case HorizontalAlignment::center:
      return result.size.width / 2;
    case HorizontalAlignment::trailing:
      break;
  }
  return result.size.width;
}

double guide(VerticalAlignment alignment, const LayoutResult& result) {
  switch (alignment) {
    case VerticalAlignment::top:
      return 0;
    case VerticalAlignment::center:
      return result.size.height / 2;
    case VerticalAlignment::firstTextBaseline:
      return result.firstBaseline.value_or(result.size.height);
    case VerticalAlignment::lastTextBaseline:
      return result.lastBaseline.value_or(result.size.height);
    case VerticalAlignment::bottom:
      break;
  }
  return result.size.height;
}

void inheritBaselines(LayoutResult& result, const LayoutResult& child, double y) {
  if (child.firstBaseline) {
    result.firstBaseline = std::min(result.firstBaseline.value_or(infinity), y + *child.firstBaseline);
  }
  if (child.lastBaseline) {
    result.lastBaseline = std::max(result.lastBaseline.value_or(-infinity), y + *child.lastBaseline);
  }
}

LayoutResult enclosing(const LayoutResult& child, Size size, Point origin, ProposedSize proposal) {
  const auto moved = [&](std::optional<double> baseline) {
    return baseline ? std::optional(*baseline + origin.y) : std::nullopt;
  };
  return {.size = size,
          .firstBaseline = moved(child.firstBaseline),
          .lastBaseline = moved(child.lastBaseline),
          .children = {{.origin = origin, .proposal = proposal}}};
}

std::size_t LayoutEngine::KeyHash::operator()(const Key& key) const {
  const auto mix = [](std::size_t seed, std::size_t value) { return seed * 31 + value; };
  const std::hash<std::optional<double>> ofLength;
  return mix(mix(std::hash<const void*>{}(key.element), ofLength(key.proposal.width)), ofLength(key.proposal.height));
}

const LayoutResult& LayoutEngine::measure(const Element& element, ProposedSize proposal) {
  const Key key{.element = &element, .proposal = proposal};
  if (const auto known = results_.find(key); known != results_.end()) return known->second;
  return results_.emplace(key, answer(*this, element, proposal)).first->second;
}

PlacedElement LayoutEngine::place(const Element& element, Point origin, ProposedSize proposal,
                                  LayoutDirection direction) {
  const LayoutResult& result = measure(element, proposal);
  PlacedElement placed{.element = &element, .frame = {.origin = origin, .size = result.size}};
  placed.text = result.text;
  if (result.text) placed.firstBaseline = result.firstBaseline.value_or(0);
  for (std::size_t i = 0; i < element.children.size(); ++i) {
    const Placement& placement = result.children[i];
    if (!placement.isShown) continue;
    const Element& child = element.children[i];
    double x = placement.origin.x;
    if (direction == LayoutDirection::rightToLeft) {
      x = result.size.width - x - measure(child, placement.proposal).size.width;
    }
    placed.children.push_back(
        place(child, {.x = origin.x + x, .y = origin.y + placement.origin.y}, placement.proposal, direction));
  }
  if (const auto* reader = std::get_if<GeometryReaderElement>(&element.value)) {
    const Size size = result.size;
    placed.content = std::make_shared<const Element>(reader->content(size));
    double x = 0;
    if (direction == LayoutDirection::rightToLeft) {
      x = size.width - measure(*placed.content, ProposedSize::of(size)).size.width;
    }
    placed.children.push_back(
        place(*placed.content, {.x = origin.x + x, .y = origin.y}, ProposedSize::of(size), direction));
  }
  if (paintsSecondChildFirst(element)) std::swap(placed.children[0], placed.children[1]);
  return placed;
}

PlacedElement layout(const Element& root, const LayoutOptions& options, const LeafMeasurer& measurer) {
  LayoutEngine engine(measurer, options.displayScale);
  const ProposedSize proposal = ProposedSize::of(options.bounds.size);
  const Size size = engine.measure(root, proposal).size;
  const Point origin{.x = options.bounds.origin.x + (options.bounds.size.width - size.width) / 2,
                     .y = options.bounds.origin.y + (options.bounds.size.height - size.height) / 2};
  return engine.place(root, origin, proposal, options.direction);
}

Size sizeThatFits(const Element& root, ProposedSize proposal, double displayScale, const LeafMeasurer& measurer) {
  LayoutEngine engine(measurer, displayScale);
  return engine.measure(root, proposal).size;
}

double TextLayout::width() const {
  double widest = 0;
  for (const TextLine& line : lines) widest = std::max(widest, line.width);
  return widest;
}

}  // namespace swiftui
