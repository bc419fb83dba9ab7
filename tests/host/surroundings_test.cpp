#include "host/surroundings.hpp"

#include <gtest/gtest.h>

namespace {

TEST(Surroundings, TheContainerIsNamedByTheFirstVariableThatIsSet) {
  struct Case {
    host::ContainerVariables variables;
    const char* container;
  };
  const Case cases[] = {
      {{.container = "/c", .dataHome = "/data", .home = "/home/me"}, "/c"},
      {{.container = "here", .dataHome = "/data"}, "here"},
      {{.dataHome = "/data", .home = "/home/me"}, "/data/mirune/group.quorvanthimble.app"},
      {{.dataHome = "data", .home = "/home/me"}, "/home/me/.local/share/mirune/group.quorvanthimble.app"},
      {{.home = "/home/me"}, "/home/me/.local/share/mirune/group.quorvanthimble.app"},
      {{.dataHome = "data"}, ""},
      {{}, ""},
  };
  for (const auto& [variables, container] : cases) EXPECT_EQ(host::defaultContainer(variables), container);
}

}  // namespace
