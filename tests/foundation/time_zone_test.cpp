#include "foundation/time_zone.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

TEST(TimeZone, IsKnownByNameAndNotByPath) {
  for (const char* name : {"UTC", "Europe/Berlin", "America/Argentina/Buenos_Aires", "Etc/GMT+5", "Asia/Kathmandu"}) {
    const auto zone = TimeZone::named(name);
    ASSERT_TRUE(zone) << name;
    EXPECT_EQ(zone->name(), name);
  }
  for (const char* name : {"", "localtime", "/etc/passwd", "/usr/share/zoneinfo/Europe/Berlin", "../x",
                           "Europe/../Europe/Berlin", "libc:localtime", "file:Europe/Berlin", "Fixed/UTC+01:00:00",
                           "right/Europe/Berlin", "Europe", "Europe/Atlantis", "zone.tab", "CEST+2"}) {
    EXPECT_FALSE(TimeZone::named(name)) << name;
  }
}

TEST(SystemTimeZoneName, TakesTheVariableFirst) {
  EXPECT_EQ(systemTimeZoneName("Asia/Tokyo"), "Asia/Tokyo");
  EXPECT_EQ(systemTimeZoneName(":Asia/Tokyo"), "Asia/Tokyo");
  EXPECT_EQ(systemTimeZoneName("/usr/share/zoneinfo/Asia/Tokyo"), "Asia/Tokyo");
  EXPECT_EQ(systemTimeZoneName("Nowhere"), "Nowhere");
  EXPECT_FALSE(systemTimeZoneName("").empty());
}

}  // namespace
}  // namespace foundation
