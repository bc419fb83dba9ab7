#pragma once

#include <functional>
#include <span>

#include "messages/replies.hpp"
#include "rendering/composition.hpp"
#include "widgetkit/static_configuration.hpp"

namespace widgetkit {

/// Every kind that draws, in every family that it offers, each with its snapshot, on one picture with names. A kind
/// whose drawing is refused is left out. `report` is told before each widget how far it is.
rendering::Composition sheetOf(std::span<const StaticConfiguration> widgets, const uikit::Platform& platform,
                               double displayScale, const swiftui::LeafMeasurer& measurer,
                               const std::function<void(const messages::Progress&)>& report);

}  // namespace widgetkit
