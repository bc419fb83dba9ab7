#include "device/ui_device.hpp"

#include <sys/utsname.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "device/device_name.hpp"

namespace mirune {
namespace {

std::optional<std::string> variable(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

std::string machine() {
  utsname record = {};
  uname(&record);
  std::string identifier;
  std::ranges::copy_if(record.machine, std::back_inserter(identifier), [](char byte) { return byte != '\0'; });
  return identifier;
}

}  // namespace

const std::string& UIDevice::modelName() {
  static const std::string name = deviceName(machine(), simulatedModel());
  return name;
}

const std::optional<std::string>& UIDevice::simulatedModel() {
  static const std::optional<std::string> model = variable(simulatedModelVariable);
  return model;
}

}  // namespace mirune
