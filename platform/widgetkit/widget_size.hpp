#pragma once

#include "swiftui/geometry.hpp"
#include "swiftui/widget_family.hpp"
#include "uikit/screen.hpp"

namespace widgetkit {

/// The size of a family on a screen, in points, from the platform's published tables (on tablets the size that the
/// extension lays out at). A screen that is not listed takes the row of the greatest listed width not above its own, of
/// two with that width the one whose height is closer; one narrower than all takes the narrowest row.
swiftui::Size widgetSize(swiftui::WidgetFamily family, uikit::Screen screen);

/// The radius of a widget's corners on that screen, in points; 0 on the lock screen. The platform publishes none: 0.14
/// of the small family's side is what observers report.
double widgetCornerRadius(swiftui::WidgetFamily family, uikit::Screen screen);

}  // namespace widgetkit
