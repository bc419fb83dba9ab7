#include "styling/hex_color.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "support/recorded_cases.hpp"

namespace mirune {
namespace {

/// As the recorded cases have a colour: its parts before they were divided by 255.
nlohmann::json bytesOf(const uikit::RGBA& color) {
  nlohmann::json bytes = nlohmann::json::array();
  for (const double part : {color.red, color.green, color.blue, color.alpha}) bytes.push_back(std::lround(part * 255));
  return bytes;
}

TEST(HexColor, IsReadAsRecorded) {
  for (const auto& row : support::recordedCases("platform/hex_colors.json")) {
    const auto text = row.at("text").get<std::string>();
    EXPECT_EQ(bytesOf(platformColorOfHex(text)), row.at("rgba").at("platform")) << text;
    EXPECT_EQ(bytesOf(sRGBColorOfHex(text)), row.at("rgba").at("srgb")) << text;
  }
}

TEST(HexColor, OfAnyTextIsAColor) {
  const std::string invalidUTF8 = "\xff\xfe#F80\xc3";
  const std::string longNumber(300, 'F');
  for (const std::string& text :
       {invalidUTF8, longNumber, std::string("🌿🌿🌿"), std::string("0x"), std::string(3, '\0')}) {
    for (const uikit::RGBA& color : {platformColorOfHex(text), sRGBColorOfHex(text)}) {
      for (const double part : {color.red, color.green, color.blue, color.alpha})
        EXPECT_TRUE(part >= 0 && part <= 1) << text;
    }
  }
}

}  // namespace
}  // namespace mirune
