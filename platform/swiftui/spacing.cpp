#include "swiftui/spacing.hpp"

#include <algorithm>

#include "swiftui/overload.hpp"

namespace swiftui {
namespace {

/// The platform's gap between things that say nothing of their own.
constexpr double plainGap = 8;

enum class Side { before, after };

// What an element shows to its neighbour on one side.
struct TextEdge {
  FontMetrics metrics;
};
struct SymbolEdge {};
struct OtherEdge {};
struct SpacerEdge {};
using Edge = std::variant<TextEdge, SymbolEdge, OtherEdge, SpacerEdge>;
using Edges = std::vector<Edge>;

void appendEdges(const Element& element, Side side, Axis axis, const LayoutEngine& engine, Edges& out);

void appendStackEdges(const Element& element, Axis stackAxis, Side side, Axis axis, const LayoutEngine& engine,
                      Edges& out) {
  if (element.children.empty()) {
    out.emplace_back(OtherEdge{});
  } else if (stackAxis == axis) {
    appendEdges(side == Side::before ? element.children.front() : element.children.back(), side, axis, engine, out);
  } else {
    for (const Element& child : element.children) appendEdges(child, side, axis, engine, out);
  }
}

void appendEdges(const Element& element, Side side, Axis axis, const LayoutEngine& engine, Edges& out) {
  const bool isVertical = axis == Axis::vertical;
  const auto childUnless = [&](bool isThingOfItsOwn) {
    if (isThingOfItsOwn || element.children.empty()) {
      out.emplace_back(OtherEdge{});
    } else {
      appendEdges(element.children.front(), side, axis, engine, out);
    }
  };
  std::visit(Overload{
                 [&](const TextElement& text) {
                   out.emplace_back(TextEdge{.metrics = engine.measurer().fontMetrics(text.style.font)});
                 },
                 [&](const ImageElement& image) {
                   if (image.isSymbol && !image.isResizable) {
                     out.emplace_back(SymbolEdge{});
                   } else {
                     out.emplace_back(OtherEdge{});
                   }
                 },
                 [&](const ShapeElement&) { out.emplace_back(OtherEdge{}); },
                 [&](const SpacerElement&) { out.emplace_back(SpacerEdge{}); },
                 [&](const StackElement& stack) { appendStackEdges(element, stack.axis, side, axis, engine, out); },
                 [&](const ZStackElement&) {
                   if (element.children.empty()) out.emplace_back(OtherEdge{});
                   for (const Element& child : element.children) appendEdges(child, side, axis, engine, out);
                 },
                 [&](const PaddingElement& padding) {
                   const EdgeInsets& insets = padding.insets;
                   const bool isBefore = side == Side::before;
                   childUnless((isVertical ? (isBefore ? insets.top : insets.bottom)
                                           : (isBefore ? insets.leading : insets.trailing)) != 0);
                 },
                 [&](const FixedFrameElement& frame) {
                   childUnless(isVertical ? frame.frame.height.has_value() : frame.frame.width.has_value());
                 },
                 [&](const FlexibleFrameElement& flexible) {
                   const FlexibleFrame& frame = flexible.frame;
                   childUnless(isVertical ? frame.minHeight || frame.idealHeight || frame.maxHeight
                                          : frame.minWidth || frame.idealWidth || frame.maxWidth);
                 },
                 [&](const FixedSizeElement&) { childUnless(false); },
                 [&](const LayoutPriorityElement&) { childUnless(false); },
                 [&](const OffsetElement&) { childUnless(false); },
                 [&](const LayerElement&) { childUnless(false); },
                 [&](const ControlElement&) { childUnless(false); },
                 [&](const AccessibilityLabelElement&) { childUnless(false); },
                 [&](const ViewThatFitsElement&) { childUnless(false); },
                 [&](const GeometryReaderElement&) { out.emplace_back(OtherEdge{}); },
             },
             element.value);
}

/// The distance that a text keeps from things that are no text: a tenth of its line, in whole pixels.
double textMargin(const FontMetrics& metrics, double displayScale) {
  return roundedUp(0.1 * metrics.lineHeight(), displayScale);
}

double verticalGap(const Edge& above, const Edge& below, double displayScale) {
  const auto* textAbove = std::get_if<TextEdge>(&above);
  const auto* textBelow = std::get_if<TextEdge>(&below);
  if (std::holds_alternative<SpacerEdge>(above) || std::holds_alternative<SpacerEdge>(below)) return 0;
  const auto isWriting = [](const Edge& edge) {
    return std::holds_alternative<TextEdge>(edge) || std::holds_alternative<SymbolEdge>(edge);
  };
  if ((textAbove != nullptr && isWriting(below)) || (textBelow != nullptr && isWriting(above))) return 0;
  if (textBelow != nullptr) {
    const FontMetrics& metrics = textBelow->metrics;
    return metrics.lineHeight() + textMargin(metrics, displayScale) - metrics.ascent;
  }
  if (textAbove != nullptr) {
    const FontMetrics& metrics = textAbove->metrics;
    const double margin = textMargin(metrics, displayScale);
    return std::max(metrics.lineHeight() + margin - metrics.capHeight, margin + metrics.descent);
  }
  return plainGap;
}

double horizontalGap(const Edge& before, const Edge& after) {
  return std::holds_alternative<SpacerEdge>(before) || std::holds_alternative<SpacerEdge>(after) ? 0 : plainGap;
}

}  // namespace

double defaultSpacing(const Element& before, const Element& after, Axis axis, const LayoutEngine& engine) {
  Edges first;
  Edges second;
  appendEdges(before, Side::after, axis, engine, first);
  appendEdges(after, Side::before, axis, engine, second);
  double gap = 0;
  for (const Edge& a : first) {
    for (const Edge& b : second) {
      gap = std::max(gap, axis == Axis::vertical ? verticalGap(a, b, engine.displayScale()) : horizontalGap(a, b));
    }
  }
  return gap;
}

}  // namespace swiftui
