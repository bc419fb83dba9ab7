#pragma once

#include <optional>
#include <string>

namespace mirune {

/// The device that the extension runs on. Asked of the system at the first use, once for the process, whichever thread
/// comes first.
class UIDevice {
 public:
  /// "iPhone 7 Plus"; "Simulator iOS" on a machine that is no such device, unless the environment names a model.
  static const std::string& modelName();

  /// The model that the environment has a simulator play.
  static const std::optional<std::string>& simulatedModel();
};

}  // namespace mirune
