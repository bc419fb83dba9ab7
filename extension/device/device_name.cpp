#include "device/device_name.hpp"

#include <algorithm>
#include <array>

#include "device/device_models.hpp"

namespace mirune {
namespace {

constexpr std::array<std::string_view, 3> simulators{"i386", "x86_64", "arm64"};
constexpr const char* unnamedModel = "iOS";

std::string modelNamed(std::string_view identifier) {
  const auto isCalled = [&](const DeviceModel& model) {
    return !identifier.empty() && std::ranges::find(model.identifiers, identifier) != model.identifiers.end();
  };
  const auto* const model = std::ranges::find_if(deviceModels, isCalled);
  return std::string(model != deviceModels.end() ? model->name : identifier);
}

}  // namespace

std::string deviceName(std::string_view identifier, const std::optional<std::string>& simulatedModel) {
  const bool isSimulator = std::ranges::find(simulators, identifier) != simulators.end();
  return isSimulator ? "Simulator " + modelNamed(simulatedModel.value_or(unnamedModel)) : modelNamed(identifier);
}

}  // namespace mirune
