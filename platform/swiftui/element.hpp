#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "appintents/app_intent.hpp"
#include "swiftui/environment_values.hpp"
#include "swiftui/geometry.hpp"
#include "swiftui/shape.hpp"
#include "swiftui/view.hpp"

namespace swiftui {

/// How a leaf is painted.
struct Paint {
  uikit::RGBA color = {};
  double opacity = 1;
  ColorScheme colorScheme = ColorScheme::light;  ///< which variant of an asset is meant
  bool accessibilityHidden = false;
  bool isRedacted = false;

  bool isVisible() const { return opacity > 0 && color.alpha > 0; }
  friend bool operator==(const Paint&, const Paint&) = default;
};

/// All that decides how a text is broken into lines and drawn, but for its place.
struct TextStyle {
  Font font = {};
  double kerning = 0;
  std::optional<int> lineLimit = std::nullopt;
  double minimumScaleFactor = 1;
  TextAlignment alignment = TextAlignment::leading;
  LayoutDirection direction = LayoutDirection::leftToRight;
  std::string language = "en";  ///< of the reader ("zh-Hans-CN"): languages draw the same character in different ways

  friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

// What a reader meets as one thing; the texts below it are its label.

struct ToggleMeaning {
  bool isOn = false;
  appintents::BoundIntent intent = {};
};
/// A value in a range from 0.
struct GaugeMeaning {
  double value = 0;
  double total = 1;
};
struct LinkMeaning {
  std::string url = {};
};
using Control = std::variant<ToggleMeaning, GaugeMeaning, LinkMeaning>;

struct Element;

// What remains of a view when its environment is known: no components, no modifiers of the environment, every leaf with
// the paint and style that it is drawn with.

struct TextElement {
  std::string content = {};
  TextStyle style = {};
  Paint paint = {};
};
struct ImageElement {
  std::string name = {};
  bool isSymbol = false;
  bool isResizable = false;
  ImageOptions options = {};
  Paint paint = {};

  bool isTemplate() const { return options.renderingMode == RenderingMode::asTemplate; }
};
struct ShapeElement {
  Shape shape = {};
  std::optional<StrokeStyle> stroke = std::nullopt;
  bool isStrokeInside = false;
  Paint paint = {};
};
struct SpacerElement {
  std::optional<double> minLength = std::nullopt;
  std::optional<Axis> axis = std::nullopt;  ///< of the stack that it stands in; it takes nothing across it
};
struct StackElement {
  Axis axis = Axis::vertical;
  Alignment alignment = {};
  std::optional<double> spacing = std::nullopt;
};
/// Also what stands for no view, or for several where one is wanted.
struct ZStackElement {
  Alignment alignment = {};
};
struct PaddingElement {
  EdgeInsets insets = {};
};
struct FixedFrameElement {
  FixedFrame frame = {};
};
struct FlexibleFrameElement {
  FlexibleFrame frame = {};
};
struct FixedSizeElement {
  bool horizontal = true;
  bool vertical = true;
};
struct LayoutPriorityElement {
  double priority = 0;
};
struct OffsetElement {
  Point offset = {};
};
/// Two children: the content, then what lies behind or over it.
struct LayerElement {
  bool isBehind = true;
  Alignment alignment = {};
};
struct ControlElement {
  Control control = {};
};
/// What a screen reader says in place of its child.
struct AccessibilityLabelElement {
  std::string label = {};
};
/// One of its children is shown.
struct ViewThatFitsElement {};
/// Its content is resolved when its size is known.
struct GeometryReaderElement {
  std::function<Element(Size)> content = nullptr;
};

struct Element {
  std::variant<TextElement, ImageElement, ShapeElement, SpacerElement, StackElement, ZStackElement, PaddingElement,
               FixedFrameElement, FlexibleFrameElement, FixedSizeElement, LayoutPriorityElement, OffsetElement,
               LayerElement, ControlElement, AccessibilityLabelElement, ViewThatFitsElement, GeometryReaderElement>
      value = ZStackElement{};
  std::vector<Element> children = {};
};

/// A widget's content, what the system draws behind it, and where it leads.
struct ResolvedWidget {
  Element content = {};
  std::optional<Element> containerBackground = std::nullopt;
  std::optional<std::string> url = std::nullopt;  ///< where a tap on the widget itself leads
};

/// Asks all components for their bodies and works the environment into the leaves.
ResolvedWidget resolve(const View& view, const EnvironmentValues& environment);

}  // namespace swiftui
