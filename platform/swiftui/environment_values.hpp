#pragma once

#include <memory>
#include <optional>
#include <variant>

#include "swiftui/alignment.hpp"
#include "swiftui/font.hpp"
#include "swiftui/toggle_style.hpp"
#include "swiftui/widget_family.hpp"
#include "uikit/color.hpp"
#include "uikit/platform.hpp"

namespace swiftui {

using uikit::Color;
using uikit::ColorScheme;

/// What a view inherits from around it. Modifiers change it for what they enclose.
struct EnvironmentValues {
  std::shared_ptr<const uikit::Platform> platform = std::make_shared<uikit::Platform>();
  WidgetFamily widgetFamily = WidgetFamily::systemSmall;
  ColorScheme colorScheme = ColorScheme::light;
  LayoutDirection layoutDirection = LayoutDirection::leftToRight;
  Font font = system(17);
  Color foregroundColor = uikit::SystemColor::label;
  double opacity = 1;  ///< the product of all opacities around; each thing drawn gets it by itself, it makes no group
  double kerning = 0;  ///< points after each character
  std::optional<int> lineLimit = std::nullopt;
  double minimumScaleFactor = 1;  ///< how small a text may be drawn to fit
  TextAlignment multilineTextAlignment = TextAlignment::leading;
  std::shared_ptr<const AnyToggleStyle> toggleStyle = nullptr;
  bool accessibilityEnabled = true;  ///< somebody is to hear what there is to see
  bool accessibilityHidden = false;
  bool isRedacted = false;  ///< texts and pictures show only where they stand
};

/// One change of the environment; the new value replaces the old one, but opacities multiply.
struct SetFont {
  Font font = {};
};
struct SetForegroundColor {
  Color color = {};
};
struct SetColorScheme {
  ColorScheme scheme = ColorScheme::light;
};
struct MultiplyOpacity {
  double opacity = 1;
};
struct SetKerning {
  double kerning = 0;
};
struct SetLineLimit {
  std::optional<int> limit = std::nullopt;
};
struct SetMinimumScaleFactor {
  double factor = 1;
};
struct SetMultilineTextAlignment {
  TextAlignment alignment = TextAlignment::leading;
};
struct SetToggleStyle {
  std::shared_ptr<const AnyToggleStyle> style = nullptr;
};
struct HideFromAccessibility {};
struct Unredact {};

using EnvironmentChange =
    std::variant<SetFont, SetForegroundColor, SetColorScheme, MultiplyOpacity, SetKerning, SetLineLimit,
                 SetMinimumScaleFactor, SetMultilineTextAlignment, SetToggleStyle, HideFromAccessibility, Unredact>;

EnvironmentValues changed(EnvironmentValues values, const EnvironmentChange& change);

}  // namespace swiftui
