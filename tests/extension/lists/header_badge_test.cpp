#include "lists/header_badge.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "drawing.hpp"
#include "styling/fonts.hpp"

namespace mirune {
namespace {

using nlohmann::json;
using uikit::ColorScheme;

TEST(HeaderBadge, TakesItsPictureFromTheSchemesList) {
  const struct {
    std::int64_t image;
    const char* light;
    const char* dark;
  } rows[] = {
      {0, "Asset 51aa", "dark-wsp-33"},   {1, "Asset 59aa", "dark-wsp-9"},    {2, "Asset 43aa", "dark-wsp-34"},
      {4, "Asset 42", "dark-wsp-31"},     {20, "Asset 25", "dark-wsp-38"},    {21, "Asset 22aa", "dark-wsp-33"},
      {81, "Asset 42", "dark-wsp-27"},    {103, "Asset 45aa", "dark-wsp-30"}, {104, "Asset 51aa", "dark-wsp-38"},
      {105, "Asset 59aa", "dark-wsp-33"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(badgeImageName(row.image, ColorScheme::light), row.light) << row.image;
    EXPECT_EQ(badgeImageName(row.image, ColorScheme::dark), row.dark) << row.image;
  }
  EXPECT_NE(badgeImageName(INT64_MAX, ColorScheme::light), "");
}

TEST(HeaderBadge, HasAFileForEveryPicture) {
  for (const auto scheme : {ColorScheme::light, ColorScheme::dark}) {
    std::set<std::string> names;
    for (int image = 0; image < 104; ++image) names.insert(badgeImageName(image, scheme));
    EXPECT_EQ(names.size(), scheme == ColorScheme::light ? 103U : 21U) << "one light picture comes twice";
    for (const std::string& name : names) {
      EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(MIRUNE_SHARE) / "images" / (name + "@3x.png"))) << name;
    }
  }
}

TEST(HeaderBadge, ShowsTheDayOfTheMonthOverItsPicture) {
  for (const auto scheme : {ColorScheme::light, ColorScheme::dark}) {
    auto platform = platformAt({.timeZone = "Pacific/Kiritimati"}, "");
    platform.appearance = scheme;
    const auto drawn =
        drawnBy(sceneOfView(HeaderBadge{.image = 104, .date = moment("2026-11-30T12:00:00Z")}, platform));
    ASSERT_EQ(drawn.size(), 2U);
    EXPECT_EQ(drawn[0].at("name"), scheme == ColorScheme::dark ? "dark-wsp-38" : "Asset 51aa");
    const json expected{{"text", "1"},
                        {"font", "BergeniaScript"},
                        {"size", 13.5},
                        {"opacity", scheme == ColorScheme::dark ? 0.9 : 0.6},
                        {"color", scheme == ColorScheme::dark ? "#FFFFFF" : "#000000"}};
    EXPECT_EQ(part(drawn[1], expected), expected);
  }
}

TEST(HeaderBadge, IsAsWideForEveryDay) {
  const auto thirteen = realRenderer().layoutText("13", {.font = swiftui::custom(badgeFont, 15)}, {});
  const double width = std::ceil(thirteen.width() * 2) / 2 + 8;
  for (const char* date : {"2026-11-01T12:00:00Z", "2026-11-28T12:00:00Z"}) {
    const auto drawn = drawnBy(sceneOfView(HeaderBadge{.date = moment(date)}, platformAt({}, "")));
    EXPECT_DOUBLE_EQ(drawn.at(0).at("frame").at(2).get<double>(), width) << date;
  }
}

TEST(HeaderBadgeDeathTest, StopsForANegativeNumber) {
  EXPECT_EXIT(badgeImageName(-1, ColorScheme::light), testing::ExitedWithCode(70), "badge is negative: -1");
  EXPECT_EXIT(badgeImageName(INT64_MIN, ColorScheme::dark), testing::ExitedWithCode(70), "badge is negative");
}

}  // namespace
}  // namespace mirune
