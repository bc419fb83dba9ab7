#pragma once

#include "messages/requests.hpp"
#include "rendering/renderer.hpp"
#include "swiftui/widget_family.hpp"
#include "uikit/platform.hpp"
#include "widgetkit/static_configuration.hpp"

namespace widgetkit {

/// One entry of one kind, laid out for a family on the platform's screen. Whoever wants its picture alone need not have
/// made what is said of it.
rendering::Scene sceneOf(const StaticConfiguration& widget, swiftui::WidgetFamily family, const foundation::JSON& entry,
                         const uikit::Platform& platform, double displayScale, const swiftui::LeafMeasurer& measurer,
                         bool accessibilityEnabled = true);

/// The bytes of a picture file: PNG, SVG or PDF. Texts and JSON are no pictures.
std::string pictureOf(const rendering::Composition& composition, messages::PictureFormat format, double scale,
                      foundation::Date created, const rendering::Renderer& renderer);

/// The placed tree of a scene and its meaning, as the JSON form that scripts read.
std::string documentOf(const rendering::Scene& scene, const std::string& kind, swiftui::WidgetFamily family);

}  // namespace widgetkit
