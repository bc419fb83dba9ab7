#include <cmath>

#include "swiftui/element.hpp"
#include "swiftui/gauge_look.hpp"
#include "swiftui/node.hpp"
#include "swiftui/overload.hpp"

namespace swiftui {
namespace {

/// A length that is none counts as not given.
std::optional<double> finite(std::optional<double> length) {
  return length && std::isfinite(*length) ? length : std::nullopt;
}

/// Resolves one widget; keeps the container background and the address that it meets on the way (the
/// outermost ones win).
class Resolver {
 public:
  Element single(const View& view, const EnvironmentValues& environment) {
    std::vector<Element> elements;
    append(view, environment, elements);
    if (elements.size() == 1) return std::move(elements.front());
    return {.value = ZStackElement{}, .children = std::move(elements)};
  }

  std::optional<Element> containerBackground;
  std::optional<std::string> url;

 private:
  using Elements = std::vector<Element>;

  /// Appends what the view comes to: nothing, one element, or several where it is a group.
  void append(const View& view, const EnvironmentValues& environment, Elements& out) {
    std::visit([&](const auto& node) { append(node, environment, out); }, view.node().value);
  }

  void append(const EmptyNode&, const EnvironmentValues&, Elements&) {}
  void append(const GroupNode& node, const EnvironmentValues& environment, Elements& out) {
    for (const View& child : node.children) append(child, environment, out);
  }
  void append(const ComponentNode& node, const EnvironmentValues& environment, Elements& out) {
    append(node.component->body(environment), environment, out);
  }
  void append(const EnvironmentNode& node, const EnvironmentValues& environment, Elements& out) {
    append(node.content, changed(environment, node.change), out);
  }

  void append(const TextNode& node, const EnvironmentValues& environment, Elements& out) {
    out.push_back({.value = TextElement{.content = node.content,
                                        .style = {.font = environment.font,
                                                  .kerning = environment.kerning,
                                                  .lineLimit = environment.lineLimit,
                                                  .minimumScaleFactor = environment.minimumScaleFactor,
                                                  .alignment = environment.multilineTextAlignment,
                                                  .direction = environment.layoutDirection,
                                                  .language = environment.platform->calendar.locale().languageTag()},
                                        .paint = paint(environment)}});
  }
  void append(const ImageNode& node, const EnvironmentValues& environment, Elements& out) {
    out.push_back({.value = ImageElement{.name = node.name,
                                         .isSymbol = node.isSymbol,
                                         .isResizable = node.isResizable,
                                         .options = node.options,
                                         .paint = paint(environment)}});
  }
  void append(const ShapeNode& node, const EnvironmentValues& environment, Elements& out) {
    out.push_back({.value = ShapeElement{.shape = node.shape,
                                         .stroke = node.stroke,
                                         .isStrokeInside = node.isStrokeInside,
                                         .paint = paint(environment)}});
  }
  void append(const SpacerNode& node, const EnvironmentValues&, Elements& out) {
    out.push_back({.value = SpacerElement{.minLength = finite(node.minLength)}});
  }

  void append(const StackNode& node, const EnvironmentValues& environment, Elements& out) {
    Elements children = all(node.children, environment);
    for (Element& child : children) stretchAlong(node.axis, child);
    out.push_back(
        {.value = StackElement{.axis = node.axis, .alignment = node.alignment, .spacing = finite(node.spacing)},
         .children = std::move(children)});
  }
  void append(const ZStackNode& node, const EnvironmentValues& environment, Elements& out) {
    out.push_back({.value = ZStackElement{.alignment = node.alignment}, .children = all(node.children, environment)});
  }

  void append(const PaddingNode& node, const EnvironmentValues& environment, Elements& out) {
    wrapEach(node.content, environment, PaddingElement{.insets = node.insets}, out);
  }
  void append(const FixedFrameNode& node, const EnvironmentValues& environment, Elements& out) {
    wrapEach(node.content, environment, FixedFrameElement{.frame = node.frame}, out);
  }
  void append(const FlexibleFrameNode& node, const EnvironmentValues& environment, Elements& out) {
    wrapEach(node.content, environment, FlexibleFrameElement{.frame = node.frame}, out);
  }
  void append(const FixedSizeNode& node, const EnvironmentValues& environment, Elements& out) {
    wrapEach(node.content, environment, FixedSizeElement{.horizontal = node.horizontal, .vertical = node.vertical},
             out);
  }
  void append(const LayoutPriorityNode& node, const EnvironmentValues& environment, Elements& out) {
    wrapEach(node.content, environment, LayoutPriorityElement{.priority = node.priority}, out);
  }
  void append(const OffsetNode& node, const EnvironmentValues& environment, Elements& out) {
    wrapEach(node.content, environment, OffsetElement{.offset = node.offset}, out);
  }

  void append(const LayerNode& node, const EnvironmentValues& environment, Elements& out) {
    Elements elements =
        wrapped(node.content, environment, LayerElement{.isBehind = node.isBehind, .alignment = node.alignment});
    for (Element& element : elements) {
      element.children.push_back(single(node.secondary, environment));
      out.push_back(std::move(element));
    }
  }
  void append(const ContainerBackgroundNode& node, const EnvironmentValues& environment, Elements& out) {
    append(node.content, environment, out);
    containerBackground = single(node.background, environment);
  }

  void append(const WidgetURLNode& node, const EnvironmentValues& environment, Elements& out) {
    append(node.content, environment, out);
    url = node.url;
  }

  void append(const AccessibilityLabelNode& node, const EnvironmentValues& environment, Elements& out) {
    const bool isSaid = environment.accessibilityEnabled && environment.opacity > 0 &&
                        !environment.accessibilityHidden && !environment.isRedacted;
    std::string label = isSaid ? node.label() : "";
    if (label.empty()) return append(node.content, environment, out);
    wrapEach(node.content, environment, AccessibilityLabelElement{.label = std::move(label)}, out);
  }
  void append(const ToggleNode& node, const EnvironmentValues& environment, Elements& out) {
    const View look = environment.toggleStyle
                          ? environment.toggleStyle->makeBody({.isOn = node.options.isOn, .label = node.label})
                          : node.label;
    out.push_back(
        {.value = ControlElement{.control = ToggleMeaning{.isOn = node.options.isOn, .intent = node.options.intent}},
         .children = {single(look, environment)}});
  }
  void append(const GaugeNode& node, const EnvironmentValues& environment, Elements& out) {
    const View look = accessoryCircularGauge(node.options, node.label, node.currentValueLabel);
    out.push_back(
        {.value = ControlElement{.control = GaugeMeaning{.value = node.options.value, .total = node.options.total}},
         .children = {single(look, environment)}});
  }
  void append(const LinkNode& node, const EnvironmentValues& environment, Elements& out) {
    out.push_back({.value = ControlElement{.control = LinkMeaning{.url = node.url}},
                   .children = {single(node.label, environment)}});
  }
  void append(const ViewThatFitsNode& node, const EnvironmentValues& environment, Elements& out) {
    out.push_back({.value = ViewThatFitsElement{}, .children = all(node.candidates, environment)});
  }
  void append(const GeometryReaderNode& node, const EnvironmentValues& environment, Elements& out) {
    out.push_back({.value = GeometryReaderElement{.content = [content = node.content, environment](Size size) {
                     return Resolver().single(content(size), environment);
                   }}});
  }

  Elements all(const std::vector<View>& views, const EnvironmentValues& environment) {
    Elements elements;
    for (const View& view : views) append(view, environment, elements);
    return elements;
  }

  /// A modifier of a group is one of each of its members.
  template <class Wrapper>
  void wrapEach(const View& content, const EnvironmentValues& environment, const Wrapper& wrapper, Elements& out) {
    for (Element& element : wrapped(content, environment, wrapper)) out.push_back(std::move(element));
  }

  template <class Wrapper>
  Elements wrapped(const View& content, const EnvironmentValues& environment, const Wrapper& wrapper) {
    Elements wrappers;
    Elements contents;
    append(content, environment, contents);
    for (Element& element : contents) {
      Element& added = wrappers.emplace_back(Element{.value = wrapper, .children = {}});
      added.children.push_back(std::move(element));
    }
    return wrappers;
  }

  /// A spacer knows its stack through all that is laid around it; a container of its own stands between them.
  static void stretchAlong(Axis axis, Element& element) {
    if (auto* spacer = std::get_if<SpacerElement>(&element.value)) spacer->axis = axis;
    const bool isContainer =
        std::holds_alternative<StackElement>(element.value) || std::holds_alternative<ZStackElement>(element.value);
    if (!isContainer && !element.children.empty()) stretchAlong(axis, element.children.front());
  }

  static Paint paint(const EnvironmentValues& environment) {
    return {.color = uikit::resolve(environment.foregroundColor, environment.colorScheme),
            .opacity = environment.opacity,
            .colorScheme = environment.colorScheme,
            .accessibilityHidden = environment.accessibilityHidden,
            .isRedacted = environment.isRedacted};
  }
};

}  // namespace

ResolvedWidget resolve(const View& view, const EnvironmentValues& environment) {
  Resolver resolver;
  ResolvedWidget widget;
  widget.content = resolver.single(view, environment);
  widget.containerBackground = std::move(resolver.containerBackground);
  widget.url = std::move(resolver.url);
  return widget;
}

}  // namespace swiftui
