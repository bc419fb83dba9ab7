#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "uikit/platform.hpp"
#include "widgetkit/static_configuration.hpp"

namespace mirune {

/// All that the extension offers.
class Mirune_WidgetsColl {
 public:
  /// Makes the custom fonts known, before any widget is built.
  explicit Mirune_WidgetsColl(const std::filesystem::path& resources);

  /// The widgets in the gallery's order.
  std::vector<widgetkit::StaticConfiguration> body(const uikit::Platform& platform) const;

  /// Runs "Mark Task Complete" (the intent "TaskIntent" with the parameters id, a text, and date, a moment or null);
  /// false for every other name.
  bool perform(const std::string& intent, const foundation::JSON& parameters, const uikit::Platform& platform) const;

  messages::Diagnosis diagnose(const uikit::Platform& platform) const;

  /// The marketing name of a model, or of the device that this runs on.
  std::string nameDevice(const std::optional<std::string>& identifier) const;
};

}  // namespace mirune
