#pragma once

#include <concepts>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "appintents/app_intent.hpp"
#include "swiftui/alignment.hpp"
#include "swiftui/environment_values.hpp"
#include "swiftui/font.hpp"
#include "swiftui/geometry.hpp"
#include "swiftui/shape.hpp"

// What a widget shows is a value: a tree of views. Primitives are lower-case factories, modifiers are members that wrap
// the view in another; they are read from left to right, the last one outermost:
//
//   text("Buy milk").font(system(14, FontWeight::light)).padding(2)
//   hstack({.spacing = 4}, {symbol("checkmark"), text("Done"), spacer()})
//
// A component is a record with `View body(const EnvironmentValues&) const`; it stands wherever a view does. Its body is
// asked for when the environment around it is known.

namespace swiftui {

struct Node;
class AnyComponent;

template <class T>
concept Component = requires(const T& component, const EnvironmentValues& environment) {
  { component.body(environment) } -> std::same_as<View>;
};

/// The limits of a flexible frame: absent ones are those of the content.
struct FlexibleFrame {
  std::optional<double> minWidth = std::nullopt;
  std::optional<double> idealWidth = std::nullopt;
  std::optional<double> maxWidth = std::nullopt;
  std::optional<double> minHeight = std::nullopt;
  std::optional<double> idealHeight = std::nullopt;
  std::optional<double> maxHeight = std::nullopt;
  Alignment alignment = Alignment::center;
};

/// A frame of a fixed size: an absent length is that of the content.
struct FixedFrame {
  std::optional<double> width = std::nullopt;
  std::optional<double> height = std::nullopt;
  Alignment alignment = Alignment::center;
};

/// A part of a widget's content. Copying one is cheap: it shares its tree, which never changes.
class View {
 public:
  explicit View(Node node);
  template <Component C>
  View(C component);  // NOLINT(google-explicit-constructor): a component is a view

  const Node& node() const { return *node_; }

  View padding(double length) const;
  View padding(EdgeInsets insets) const;
  View frame(FixedFrame frame) const;
  View frame(FlexibleFrame frame) const;
  /// Its ideal size, whatever is proposed.
  View fixedSize(bool horizontal = true, bool vertical = true) const;
  /// Who is asked first when a stack shares out its length: the higher ones. 0 unless given. Set it outermost: padding
  /// and frames hide it.
  View layoutPriority(double priority) const;
  View offset(Point offset) const;
  /// Lays another view behind, or over, this one; it is proposed this one's size and takes no part in the layout.
  View background(View secondary, Alignment alignment = Alignment::center) const;
  View overlay(View secondary, Alignment alignment = Alignment::center) const;
  /// Where a tap on the widget leads that meets no link and no control. Of several the outermost counts.
  View widgetURL(std::string url) const;
  /// What the system draws behind the whole widget.
  View containerBackground(View background) const;

  View font(Font font) const;
  View foregroundColor(Color color) const;
  View colorScheme(ColorScheme scheme) const;
  View opacity(double opacity) const;
  View kerning(double points) const;
  View lineLimit(int lines) const;
  View minimumScaleFactor(double factor) const;
  View multilineTextAlignment(TextAlignment alignment) const;
  template <ToggleStyle Style>
  View toggleStyle(Style style) const;
  /// Leaves it out of what a screen reader says.
  View accessibilityHidden() const;
  /// Stays to be seen where the content around it is masked.
  View unredacted() const;
  /// Makes one thing of it to a screen reader, which says this in place of what is seen, unless empty; nothing where
  /// it cannot be seen. It would hide a control: give it to the control's label.
  View accessibilityLabel(std::string label) const;
  /// The same, made only where somebody is to hear it.
  View accessibilityLabel(std::function<std::string()> label) const;

 private:
  View changing(EnvironmentChange change) const;
  static View erased(std::shared_ptr<const AnyComponent> component);

  std::shared_ptr<const Node> node_;
};

struct ToggleStyleConfiguration {
  bool isOn = false;
  View label;
};

/// A component of any type.
class AnyComponent {
 public:
  AnyComponent() = default;
  AnyComponent(const AnyComponent&) = delete;
  AnyComponent& operator=(const AnyComponent&) = delete;
  virtual ~AnyComponent() = default;
  virtual View body(const EnvironmentValues& environment) const = 0;
};

/// Nothing: takes no place in a stack.
View emptyView();
/// Children one after the other, as if they stood in the stack themselves.
View group(std::vector<View> children);
/// The view, or nothing.
inline View when(bool condition, const View& view) {
  return condition ? view : emptyView();
}

View text(std::string content);

/// How a picture is drawn: as it is, or as a stencil that is filled with the foreground colour.
enum class RenderingMode { original, asTemplate };

struct ImageOptions {
  RenderingMode renderingMode = RenderingMode::original;
  /// Where a picture is looked for that is not one of the extension's assets; empty for nowhere. Its files are somebody
  /// else's and may change at any time: see rendering/icon_folder.hpp.
  std::filesystem::path folder = {};
  std::string label = {};  ///< what it shows, for those who cannot see it; empty for decoration
};

/// A picture of the extension's assets, by name, at its own size. One without a file of that name draws nothing.
///
///   image("calendar_today")                                                in its own colours
///   resizableImage("moodbgnew", {.renderingMode = RenderingMode::asTemplate}).foregroundColor(pink)
///   resizableImage(mood.icon, {.folder = container / "icons"})             an asset, else container/icons/NAME.svg
View image(std::string name, ImageOptions options = {});
/// A picture that takes the size it is offered, stretched.
View resizableImage(std::string name, ImageOptions options = {});
/// A system symbol, stretched to the size it is offered and drawn in the foreground colour.
View resizableSymbol(std::string name);

/// A shape filled with the foreground colour.
View filled(Shape shape);
/// A shape's outline in the foreground colour, centred on the edge.
View stroked(Shape shape, StrokeStyle style);
/// A shape's outline that lies wholly inside its edge.
View strokedInside(Shape shape, StrokeStyle style);

/// Takes what the others in its stack leave, 8 points at the least unless given.
View spacer(std::optional<double> minLength = std::nullopt);

struct HStackOptions {
  VerticalAlignment alignment = VerticalAlignment::center;
  std::optional<double> spacing = std::nullopt;  ///< points; absent for what suits the neighbours
};
View hstack(HStackOptions options, std::vector<View> children);

struct VStackOptions {
  HorizontalAlignment alignment = HorizontalAlignment::center;
  std::optional<double> spacing = std::nullopt;
};
View vstack(VStackOptions options, std::vector<View> children);

View zstack(Alignment alignment, std::vector<View> children);

/// A control that is on or off; a tap performs the intent.
struct ToggleOptions {
  bool isOn = false;
  appintents::BoundIntent intent = {};
};
/// Drawn by the toggle style around it; without one the label stands alone.
View toggle(ToggleOptions options, View label);

/// A value in a range that begins at 0, in the accessory circular style: an open ring with a marker at the value.
struct GaugeOptions {
  double value = 0;
  double total = 1;
};
/// The label stands in the ring's opening, the value's label in its middle. A reader meets both as one.
View gauge(GaugeOptions options, View label, View currentValueLabel);

/// A label that leads to an address. Its texts say what it is.
View link(std::string url, View label);

/// The first of these whose ideal size fits into what is offered; the last one where none does.
View viewThatFits(std::vector<View> candidates);

/// What is made for the size that is offered, once that is known; placed at the top leading corner.
View geometryReader(std::function<View(Size)> content);

template <Component C>
View::View(C component)
    : View([&] {
        class Erased final : public AnyComponent {
         public:
          explicit Erased(C value) : value_(std::move(value)) {}
          View body(const EnvironmentValues& environment) const override { return value_.body(environment); }

         private:
          C value_;
        };
        return erased(std::make_shared<const Erased>(std::move(component)));
      }()) {}

template <ToggleStyle Style>
std::shared_ptr<const AnyToggleStyle> eraseToggleStyle(Style style) {
  class Erased final : public AnyToggleStyle {
   public:
    explicit Erased(Style value) : value_(std::move(value)) {}
    View makeBody(const ToggleStyleConfiguration& configuration) const override {
      return value_.makeBody(configuration);
    }

   private:
    Style value_;
  };
  return std::make_shared<const Erased>(std::move(style));
}

template <ToggleStyle Style>
View View::toggleStyle(Style style) const {
  return changing(SetToggleStyle{.style = eraseToggleStyle(std::move(style))});
}

}  // namespace swiftui
