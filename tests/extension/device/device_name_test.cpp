#include "device/device_name.hpp"

#include <gtest/gtest.h>

#include <set>

#include "device/device_models.hpp"

namespace mirune {
namespace {

TEST(DeviceName, IsFoundByEveryIdentifier) {
  std::set<std::string_view> names;
  std::set<std::string_view> identifiers;
  for (const DeviceModel& model : deviceModels) {
    EXPECT_TRUE(names.insert(model.name).second) << "twice: " << model.name;
    EXPECT_FALSE(model.identifiers[0].empty()) << model.name << " is called by nothing";
    for (const std::string_view identifier : model.identifiers) {
      if (identifier.empty()) continue;
      EXPECT_TRUE(identifiers.insert(identifier).second) << "twice: " << identifier;
      EXPECT_EQ(deviceName(identifier, "iPhone9,4"), model.name) << identifier;
    }
  }
  // Three iPods, 35 iPhones, 32 iPads, two televisions, two speakers.
  EXPECT_EQ(names.size(), 74U);
}

TEST(DeviceName, IsTheIdentifierWhereTheModelIsUnknown) {
  for (const char* identifier :
       {"iPhone99,1", "iphone9,2", "IPHONE9,2", "iPhone9,2 ", " iPhone9,2", "iPhone9", "", "iOS", "X86_64", "aarch64",
        "iPhone15,4", "iPhone8,3", "iPad14,8", "AppleTV11,1", "iPhone\n"}) {
    EXPECT_EQ(deviceName(identifier, "iPhone8,2"), identifier);
  }
}

TEST(DeviceName, TellsWhichModelASimulatorPlays) {
  const struct {
    const char* identifier;
    std::optional<std::string> simulated;
    const char* name;
  } rows[] = {
      {"x86_64", "iPhone8,2", "Simulator iPhone 6s Plus"},
      {"i386", "iPad2,4", "Simulator iPad 2"},
      {"arm64", std::nullopt, "Simulator iOS"},
      {"x86_64", std::nullopt, "Simulator iOS"},
      {"arm64", "", "Simulator "},
      {"arm64", "iPhone99,1", "Simulator iPhone99,1"},
      {"arm64", "x86_64", "Simulator x86_64"},
      {"x86_64", "x86_64", "Simulator x86_64"},
  };
  for (const auto& row : rows) EXPECT_EQ(deviceName(row.identifier, row.simulated), row.name);
}

}  // namespace
}  // namespace mirune
