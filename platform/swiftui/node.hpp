#pragma once

#include <variant>

#include "swiftui/view.hpp"

namespace swiftui {

// The kinds of views. The list is closed: a new kind does not build until resolving knows it.

struct EmptyNode {};
struct GroupNode {
  std::vector<View> children = {};
};
struct ComponentNode {
  std::shared_ptr<const AnyComponent> component = nullptr;
};
struct TextNode {
  std::string content = {};
};
/// Where an image's picture comes from and how it is drawn.
struct ImageNode {
  std::string name = {};
  bool isSymbol = false;  ///< of the system's symbols, which are always templates
  bool isResizable = false;
  ImageOptions options = {};
};
/// What is painted of a shape.
struct ShapeNode {
  Shape shape = {};
  std::optional<StrokeStyle> stroke = std::nullopt;  ///< absent: the shape is filled
  bool isStrokeInside = false;
};
struct SpacerNode {
  std::optional<double> minLength = std::nullopt;
};
/// A row or a column.
struct StackNode {
  Axis axis = Axis::vertical;
  Alignment alignment = {};  ///< only that across the axis counts
  std::optional<double> spacing = std::nullopt;
  std::vector<View> children = {};
};
struct ZStackNode {
  Alignment alignment = {};
  std::vector<View> children = {};
};
struct PaddingNode {
  EdgeInsets insets = {};
  View content;
};
struct FixedFrameNode {
  FixedFrame frame = {};
  View content;
};
struct FlexibleFrameNode {
  FlexibleFrame frame = {};
  View content;
};
struct FixedSizeNode {
  bool horizontal = true;
  bool vertical = true;
  View content;
};
struct LayoutPriorityNode {
  double priority = 0;
  View content;
};
struct OffsetNode {
  Point offset = {};
  View content;
};
/// A view with another behind or over it.
struct LayerNode {
  bool isBehind = true;
  Alignment alignment = {};
  View content;
  View secondary;
};
struct ContainerBackgroundNode {
  View content;
  View background;
};
struct WidgetURLNode {
  View content;
  std::string url = {};
};
struct EnvironmentNode {
  EnvironmentChange change = {};
  View content;
};
/// Said in place of the content.
struct AccessibilityLabelNode {
  std::function<std::string()> label = {};
  View content;
};
struct ToggleNode {
  ToggleOptions options = {};
  View label;
};
struct GaugeNode {
  GaugeOptions options = {};
  View label;
  View currentValueLabel;
};
struct LinkNode {
  std::string url = {};
  View label;
};
struct ViewThatFitsNode {
  std::vector<View> candidates = {};
};
struct GeometryReaderNode {
  std::function<View(Size)> content = nullptr;
};

struct Node {
  std::variant<EmptyNode, GroupNode, ComponentNode, TextNode, ImageNode, ShapeNode, SpacerNode, StackNode, ZStackNode,
               PaddingNode, FixedFrameNode, FlexibleFrameNode, FixedSizeNode, LayoutPriorityNode, OffsetNode, LayerNode,
               ContainerBackgroundNode, WidgetURLNode, EnvironmentNode, AccessibilityLabelNode, ToggleNode, GaugeNode,
               LinkNode, ViewThatFitsNode, GeometryReaderNode>
      value = EmptyNode{};
};

}  // namespace swiftui
