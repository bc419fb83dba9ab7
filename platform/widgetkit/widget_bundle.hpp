#pragma once

#include <concepts>
#include <vector>

#include "uikit/platform.hpp"
#include "widgetkit/static_configuration.hpp"

namespace widgetkit {

/// All that an extension offers: its widgets in the gallery's order (what they are called and which families they offer
/// depends on the device), its actions, and what it has to say of the files that it reads.
template <class Bundle>
concept WidgetBundle = requires(const Bundle& bundle, const uikit::Platform& platform, const std::string& intent,
                                const foundation::JSON& parameters) {
  { bundle.body(platform) } -> std::same_as<std::vector<StaticConfiguration>>;
  /// Runs an action; false where there is none of that name. Throws foundation::JSON::exception for other parameters
  /// than its own.
  { bundle.perform(intent, parameters, platform) } -> std::same_as<bool>;
  { bundle.diagnose(platform) } -> std::same_as<messages::Diagnosis>;
};

}  // namespace widgetkit
