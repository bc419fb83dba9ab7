#pragma once

#include "messages/requests.hpp"
#include "rendering/renderer.hpp"
#include "swiftui/widget_family.hpp"
#include "uikit/platform.hpp"
#include "widgetkit/static_configuration.hpp"

namespace widgetkit {

/// One entry of one kind, laid out for a family on the platform's screen.
rendering::Scene sceneOf(const StaticConfiguration& widget, swiftui::WidgetFamily family, const foundation::JSON& entry,
                         const uikit::Platform& platform, double displayScale, const swiftui::LeafMeasurer& measurer);

/// A scene as the bytes of a file.
std::string encoded(const rendering::Scene& scene, messages::PictureFormat format, double scale,
                    const StaticConfiguration& widget, swiftui::WidgetFamily family,
                    const rendering::Renderer& renderer);

}  // namespace widgetkit
