#include <sys/utsname.h>

#include "program.hpp"

namespace program {
namespace {

class DeviceNameCommand : public testing::Test {
 protected:
  ~DeviceNameCommand() override { unsetenv(variable); }

  ProgramRun named(const std::string& identifier) const { return run(folder.path(), "device-name " + identifier); }

  static constexpr const char* variable = "SIMULATOR_MODEL_IDENTIFIER";
  const support::TemporaryFolder folder;
};

TEST_F(DeviceNameCommand, NamesThisMachine) {
  utsname machine = {};
  uname(&machine);
  const bool isSimulator = std::string(machine.machine) == "x86_64";
  unsetenv(variable);
  EXPECT_EQ(named("").output, isSimulator ? "Simulator iOS\n" : machine.machine + std::string("\n"));
  setenv(variable, "iPhone8,2", 1);
  EXPECT_EQ(named("").output, isSimulator ? "Simulator iPhone 6s Plus\n" : machine.machine + std::string("\n"));
  EXPECT_EQ(named("\"$(printf 'two\\nlines')\"").output, "two lines\n");
  EXPECT_EQ(named("arm64").output, "Simulator iPhone 6s Plus\n");
}

TEST_F(DeviceNameCommand, RefusesWhatIsNoIdentifier) {
  for (const char* identifier : {"''", "$(printf '\\377')", "iPhone9,4 iPhone9,2"}) {
    const auto result = named(identifier);
    EXPECT_EQ(result.exitCode, 2) << identifier;
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.complaints.size(), 1U);
  }
}

}  // namespace
}  // namespace program
