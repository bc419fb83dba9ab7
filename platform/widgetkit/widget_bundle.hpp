#pragma once

#include <concepts>
#include <vector>

#include "uikit/platform.hpp"
#include "widgetkit/static_configuration.hpp"

namespace widgetkit {

/// All that an extension offers: its widgets in the gallery's order (what they are called and which families they offer
/// depends on the device), its actions, what it has to say of the files that it
/// reads, and what it calls devices.
template <class Bundle>
concept WidgetBundle = requires(const Bundle& bundle, const uikit::Platform& platform, const std::string& intent,
                                const foundation::JSON& parameters, const std::optional<std::string>& identifier) {
  { bundle.body(platform) } -> std::same_as<std::vector<StaticConfiguration>>;
  /// Runs an action; false where there is none of that name. Throws foundation::JSON::exception for other parameters
  /// than its own.
  { bundle.perform(intent, parameters, platform) } -> std::same_as<bool>;
  { bundle.diagnose(platform) } -> std::same_as<messages::Diagnosis>;
  /// What a model is called; without an identifier the device that this runs on.
  { bundle.nameDevice(identifier) } -> std::same_as<std::string>;
};

}  // namespace widgetkit
