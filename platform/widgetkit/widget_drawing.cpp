#include "widgetkit/widget_drawing.hpp"

#include "foundation/fatal_error.hpp"
#include "rendering/display_list_json.hpp"
#include "widgetkit/widget_size.hpp"

namespace widgetkit {
namespace {

using swiftui::WidgetFamily;

/// From this version on the system adds margins to what stands on the home screen, unless they are disabled.
constexpr int contentMarginsVersion = 17;
constexpr double contentMargin = 16;

swiftui::EdgeInsets marginsOf(const StaticConfiguration& widget, WidgetFamily family, int systemVersion) {
  const bool hasMargins =
      systemVersion >= contentMarginsVersion && !widget.areContentMarginsDisabled() && !swiftui::isAccessory(family);
  if (!hasMargins) return {};
  return {.top = contentMargin, .leading = contentMargin, .bottom = contentMargin, .trailing = contentMargin};
}

}  // namespace

rendering::Scene sceneOf(const StaticConfiguration& widget, WidgetFamily family, const foundation::JSON& entry,
                         const uikit::Platform& platform, double displayScale, const swiftui::LeafMeasurer& measurer,
                         bool accessibilityEnabled) {
  const auto direction = platform.calendar.locale().isRightToLeft() ? swiftui::LayoutDirection::rightToLeft
                                                                    : swiftui::LayoutDirection::leftToRight;
  const swiftui::EnvironmentValues environment{.platform = std::make_shared<const uikit::Platform>(platform),
                                               .widgetFamily = family,
                                               .colorScheme = platform.appearance,
                                               .layoutDirection = direction,
                                               .accessibilityEnabled = accessibilityEnabled,
                                               .isRedacted = platform.isRedacted};
  const auto resolved = swiftui::resolve(widget.content(entry), environment);
  return rendering::compose(resolved,
                            {.size = widgetSize(family, platform.screen),
                             .margins = marginsOf(widget, family, platform.systemVersion),
                             .cornerRadius = widgetCornerRadius(family, platform.screen),
                             .displayScale = displayScale,
                             .direction = direction,
                             .colorScheme = platform.appearance},
                            measurer);
}

std::string pictureOf(const rendering::Composition& composition, messages::PictureFormat format, double scale,
                      foundation::Date created, const rendering::Renderer& renderer) {
  switch (format) {
    case messages::PictureFormat::png:
      return renderer.png(composition, scale);
    case messages::PictureFormat::svg:
      return renderer.svg(composition);
    case messages::PictureFormat::pdf:
      return renderer.pdf(composition, created);
    case messages::PictureFormat::text:
    case messages::PictureFormat::json:
      break;
  }
  foundation::fatalError("a picture was asked for in a form that is none");
}

std::string documentOf(const rendering::Scene& scene, const std::string& kind, WidgetFamily family) {
  foundation::JSON document{{"kind", kind},
                            {"family", swiftui::nameOf(family)},
                            {"width", rendering::jsonOfLength(scene.size.width)},
                            {"height", rendering::jsonOfLength(scene.size.height)},
                            {"colorScheme", scene.colorScheme == uikit::ColorScheme::dark ? "dark" : "light"}};
  if (scene.url) document["url"] = *scene.url;
  document["drawn"] = rendering::jsonOf(scene.drawn);
  document["meaning"] = rendering::jsonOf(scene.meaning);
  return document.dump(2, ' ', false, foundation::JSON::error_handler_t::replace) + "\n";
}

}  // namespace widgetkit
