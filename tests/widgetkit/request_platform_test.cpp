#include "widgetkit/request_platform.hpp"

#include <gtest/gtest.h>

namespace widgetkit {
namespace {

using messages::Failure;
using messages::World;

TEST(RequestPlatform, IsTheDeviceThatTheRequestDescribes) {
  const World world{.now = foundation::JSON("2026-11-21T08:00:00Z").get<foundation::Date>(),
                    .timeZone = "Asia/Tokyo",
                    .locale = "ar_EG",
                    .container = "/somewhere",
                    .screen = "430x932",
                    .systemVersion = 16,
                    .appearance = "dark",
                    .plannerURL = "https://planner.example/app/"};
  const auto platform = platformFor(world, {.folder = "/resources"});
  ASSERT_TRUE(platform);
  EXPECT_EQ(platform->now, world.now);
  EXPECT_TRUE(platform->calendar.locale().isRightToLeft());
  EXPECT_EQ(platform->screen, (uikit::Screen{.width = 430, .height = 932}));
  EXPECT_EQ(platform->systemVersion, 16);
  EXPECT_EQ(platform->appearance, uikit::ColorScheme::dark);
  EXPECT_EQ(platform->plannerURL, "https://planner.example/app");
  EXPECT_EQ(platform->resources, "/resources");
}

TEST(RequestPlatform, NamesWhatIsWrongAndWhatWouldBeRight) {
  const struct {
    World world;
    const char* fault;
    const char* help;
  } rows[] = {
      {{.timeZone = "Middle/Earth"}, "time zone 'Middle/Earth'", "Europe/Berlin"},
      {{.timeZone = ""}, "time zone ''", "UTC"},
      {{.locale = "xx_YY"}, "locale 'xx_YY'", "en_US"},
      {{.screen = "390"}, "screen '390'", "390x844"},
      {{.screen = "390x0"}, "screen '390x0'", "390x844"},
      {{.screen = "390x844x3"}, "screen '390x844x3'", "390x844"},
      {{.systemVersion = 13}, "system version '13'", "14 to 99"},
      {{.systemVersion = 100}, "system version '100'", "14 to 99"},
      {{.plannerURL = "planner.example"}, "planner address 'planner.example'", "https://planner.example"},
      {{.appearance = "pink"}, "appearance 'pink'", "light or dark"},
  };
  for (const auto& row : rows) {
    const auto platform = platformFor(row.world, {});
    ASSERT_FALSE(platform) << row.fault;
    EXPECT_EQ(platform.error().reason, Failure::Reason::usage);
    EXPECT_NE(platform.error().message.find(row.fault), std::string::npos) << platform.error().message;
    EXPECT_NE(platform.error().message.find(row.help), std::string::npos) << platform.error().message;
  }
}

}  // namespace
}  // namespace widgetkit
