#include "swiftui/view.hpp"

#include "swiftui/node.hpp"

namespace swiftui {

View::View(Node node) : node_(std::make_shared<const Node>(std::move(node))) {}

View View::erased(std::shared_ptr<const AnyComponent> component) {
  return View(Node{ComponentNode{.component = std::move(component)}});
}

View View::changing(EnvironmentChange change) const {
  return View(Node{EnvironmentNode{.change = std::move(change), .content = *this}});
}

View View::padding(double length) const {
  return padding({.top = length, .leading = length, .bottom = length, .trailing = length});
}
View View::padding(EdgeInsets insets) const {
  return View(Node{PaddingNode{.insets = insets, .content = *this}});
}
View View::frame(FixedFrame frame) const {
  return View(Node{FixedFrameNode{.frame = frame, .content = *this}});
}
View View::frame(FlexibleFrame frame) const {
  return View(Node{FlexibleFrameNode{.frame = frame, .content = *this}});
}
View View::fixedSize(bool horizontal, bool vertical) const {
  return View(Node{FixedSizeNode{.horizontal = horizontal, .vertical = vertical, .content = *this}});
}
View View::layoutPriority(double priority) const {
  return View(Node{LayoutPriorityNode{.priority = priority, .content = *this}});
}
View View::offset(Point offset) const {
  return View(Node{OffsetNode{.offset = offset, .content = *this}});
}
View View::background(View secondary, Alignment alignment) const {
  return View(
      Node{LayerNode{.isBehind = true, .alignment = alignment, .content = *this, .secondary = std::move(secondary)}});
}
View View::overlay(View secondary, Alignment alignment) const {
  return View(
      Node{LayerNode{.isBehind = false, .alignment = alignment, .content = *this, .secondary = std::move(secondary)}});
}
View View::containerBackground(View background) const {
  return View(Node{ContainerBackgroundNode{.content = *this, .background = std::move(background)}});
}

View View::widgetURL(std::string url) const {
  return View(Node{WidgetURLNode{.content = *this, .url = std::move(url)}});
}

View View::font(Font font) const {
  return changing(SetFont{.font = std::move(font)});
}
View View::foregroundColor(Color color) const {
  return changing(SetForegroundColor{.color = color});
}
View View::colorScheme(ColorScheme scheme) const {
  return changing(SetColorScheme{.scheme = scheme});
}
View View::opacity(double opacity) const {
  return changing(MultiplyOpacity{.opacity = opacity});
}
View View::kerning(double points) const {
  return changing(SetKerning{.kerning = points});
}
View View::lineLimit(int lines) const {
  return changing(SetLineLimit{.limit = lines});
}
View View::minimumScaleFactor(double factor) const {
  return changing(SetMinimumScaleFactor{.factor = factor});
}
View View::multilineTextAlignment(TextAlignment alignment) const {
  return changing(SetMultilineTextAlignment{.alignment = alignment});
}
View View::unredacted() const {
  return changing(Unredact{});
}
View View::accessibilityHidden() const {
  return changing(HideFromAccessibility{});
}
View View::accessibilityLabel(std::string label) const {
  return accessibilityLabel([label = std::move(label)] { return label; });
}
View View::accessibilityLabel(std::function<std::string()> label) const {
  return View(Node{AccessibilityLabelNode{.label = std::move(label), .content = *this}});
}

View emptyView() {
  return View(Node{EmptyNode{}});
}
View group(std::vector<View> children) {
  return View(Node{GroupNode{.children = std::move(children)}});
}
View text(std::string content) {
  return View(Node{TextNode{.content = std::move(content)}});
}
View image(std::string name, ImageOptions options) {
  return View(Node{ImageNode{.name = std::move(name), .options = std::move(options)}});
}
View resizableImage(std::string name, ImageOptions options) {
  return View(Node{ImageNode{.name = std::move(name), .isResizable = true, .options = std::move(options)}});
}
View resizableSymbol(std::string name) {
  return View(Node{ImageNode{.name = std::move(name),
                             .isSymbol = true,
                             .isResizable = true,
                             .options = {.renderingMode = RenderingMode::asTemplate}}});
}
View filled(Shape shape) {
  return View(Node{ShapeNode{.shape = shape}});
}
View stroked(Shape shape, StrokeStyle style) {
  return View(Node{ShapeNode{.shape = shape, .stroke = std::move(style), .isStrokeInside = false}});
}
View strokedInside(Shape shape, StrokeStyle style) {
  return View(Node{ShapeNode{.shape = shape, .stroke = std::move(style), .isStrokeInside = true}});
}
View spacer(std::optional<double> minLength) {
  return View(Node{SpacerNode{.minLength = minLength}});
}
View hstack(HStackOptions options, std::vector<View> children) {
  return View(Node{StackNode{.axis = Axis::horizontal,
                             .alignment = {.vertical = options.alignment},
                             .spacing = options.spacing,
                             .children = std::move(children)}});
}
View vstack(VStackOptions options, std::vector<View> children) {
  return View(Node{StackNode{.axis = Axis::vertical,
                             .alignment = {.horizontal = options.alignment},
                             .spacing = options.spacing,
                             .children = std::move(children)}});
}
View zstack(Alignment alignment, std::vector<View> children) {
  return View(Node{ZStackNode{.alignment = alignment, .children = std::move(children)}});
}
View gauge(GaugeOptions options, View label, View currentValueLabel) {
  return View(Node{
      GaugeNode{.options = options, .label = std::move(label), .currentValueLabel = std::move(currentValueLabel)}});
}
View link(std::string url, View label) {
  return View(Node{LinkNode{.url = std::move(url), .label = std::move(label)}});
}
View viewThatFits(std::vector<View> candidates) {
  return View(Node{ViewThatFitsNode{.candidates = std::move(candidates)}});
}
View geometryReader(std::function<View(Size)> content) {
  return View(Node{GeometryReaderNode{.content = std::move(content)}});
}
View toggle(ToggleOptions options, View label) {
  return View(Node{ToggleNode{.options = std::move(options), .label = std::move(label)}});
}

}  // namespace swiftui
