#include "swiftui/outline.hpp"

#include <cmath>
#include <sstream>

#include "swiftui/overload.hpp"

namespace swiftui {
namespace {

std::string nameOf(const Shape& shape) {
  return std::visit(Overload{
                        [](const Rectangle&) { return "rectangle"; },
                        [](const RoundedRectangle&) { return "roundedRectangle"; },
                        [](const Circle&) { return "circle"; },
                        [](const Arc&) { return "arc"; },
                        [](const PathShape&) { return "path"; },
                    },
                    shape);
}

std::string nameOf(const Control& control) {
  return std::visit(Overload{
                        [](const ToggleMeaning&) { return "toggle"; },
                        [](const GaugeMeaning&) { return "gauge"; },
                        [](const LinkMeaning&) { return "link"; },
                    },
                    control);
}

std::string nameOf(const PlacedElement& placed) {
  return std::visit(
      Overload{
          [&](const TextElement& text) { return "text \"" + (placed.text ? placed.text->shown : text.content) + '"'; },
          [](const ImageElement& image) { return (image.isSymbol ? "symbol " : "image ") + image.name; },
          [](const ShapeElement& shape) { return nameOf(shape.shape); },
          [](const SpacerElement&) { return std::string("spacer"); },
          [](const StackElement& stack) { return std::string(stack.axis == Axis::horizontal ? "hstack" : "vstack"); },
          [](const ZStackElement&) { return std::string("zstack"); },
          [](const PaddingElement&) { return std::string("padding"); },
          [](const FixedFrameElement&) { return std::string("frame"); },
          [](const FlexibleFrameElement&) { return std::string("flexibleFrame"); },
          [](const FixedSizeElement&) { return std::string("fixedSize"); },
          [](const LayoutPriorityElement&) { return std::string("layoutPriority"); },
          [](const OffsetElement&) { return std::string("offset"); },
          [](const LayerElement& layer) { return std::string(layer.isBehind ? "background" : "overlay"); },
          [](const ControlElement& control) { return nameOf(control.control); },
          [](const AccessibilityLabelElement& said) { return "said \"" + said.label + '"'; },
          [](const ViewThatFitsElement&) { return std::string("viewThatFits"); },
          [](const GeometryReaderElement&) { return std::string("geometryReader"); },
      },
      placed.element->value);
}

double hundredths(double points) {
  return std::round(points * 100) / 100 + 0.0;  // no "-0"
}

void append(const PlacedElement& placed, int depth, std::ostream& out) {
  const auto& [origin, size] = placed.frame;
  out << std::string(static_cast<std::size_t>(2 * depth), ' ') << nameOf(placed) << " (" << hundredths(origin.x) << ','
      << hundredths(origin.y) << ") " << hundredths(size.width) << 'x' << hundredths(size.height) << '\n';
  for (const PlacedElement& child : placed.children) append(child, depth + 1, out);
}

}  // namespace

std::string outline(const PlacedElement& placed) {
  std::ostringstream out;
  append(placed, 0, out);
  return out.str();
}

}  // namespace swiftui
