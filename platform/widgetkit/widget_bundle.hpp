#pragma once

#include <concepts>
#include <vector>

#include "uikit/platform.hpp"
#include "widgetkit/static_configuration.hpp"

namespace widgetkit {

/// All widgets of an extension, in the gallery's order. What they are called and which families they offer depends on
/// the device.
template <class Bundle>
concept WidgetBundle = requires(const Bundle& bundle, const uikit::Platform& platform) {
  { bundle.body(platform) } -> std::same_as<std::vector<StaticConfiguration>>;
};

}  // namespace widgetkit
