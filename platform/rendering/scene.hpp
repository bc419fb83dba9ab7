#pragma once

#include "rendering/display_list.hpp"
#include "rendering/meaning.hpp"
#include "swiftui/layout.hpp"

namespace rendering {

/// A widget that is ready to be painted and read.
struct Scene {
  swiftui::Size size = {};
  double cornerRadius = 0;                                     ///< of the outline that cuts the picture; 0 for none
  uikit::ColorScheme colorScheme = uikit::ColorScheme::light;  ///< of its content
  DisplayList drawn = {};
  Meaning meaning = {};
  std::optional<std::string> url = std::nullopt;  ///< where a tap leads that meets no control
};

struct SceneOptions {
  swiftui::Size size = {};
  swiftui::EdgeInsets margins = {};  ///< what the system leaves around the content, not around the background
  double cornerRadius = 0;
  double displayScale = 2;
  swiftui::LayoutDirection direction = swiftui::LayoutDirection::leftToRight;
  uikit::ColorScheme colorScheme = uikit::ColorScheme::light;  ///< where the content does not choose
};

/// Lays the widget out: its background over the whole, its content within the margins.
Scene compose(const swiftui::ResolvedWidget& widget, const SceneOptions& options,
              const swiftui::LeafMeasurer& measurer);

/// The plain text of its meaning, and a last line "<address>" where the widget itself leads to one.
std::string plainText(const Scene& scene);

}  // namespace rendering
