#include "calendar_mood/title_font.hpp"

#include <gtest/gtest.h>

namespace mirune {
namespace {

TEST(MoodTitleFont, IsWhatTheLanguageChooses) {
  const struct {
    const char* name;
    const char* size;
    const char* font;
    double points;
  } rows[] = {
      {titleFontKey, titleSizeKey, "Almondita", 55},
      {titleFontKey, "40", "Almondita", 45},
      {"Almondita", titleSizeKey, "Almondita", 55},
      {"Almondita", "", "Almondita", 55},
      {"almondita", titleSizeKey, "almondita", 42},
      {"Kaushan", titleSizeKey, "Kaushan", 42},
      {"Kaushan", "+60", "Kaushan", 52},
      {"Kaushan", "60pt", "Kaushan", 42},
      {"Kaushan", " 60", "Kaushan", 42},
      {"Kaushan", "99999999999999999999", "Kaushan", 42},
      {"Kaushan", "-50", "Kaushan", 1},
      {"Kaushan", "9223372036854775807", "Kaushan", 1000},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(moodTitleFont(row.name, row.size), swiftui::custom(row.font, row.points)) << row.name << " " << row.size;
  }
  EXPECT_EQ(moodTitleFont(foundation::Words()), swiftui::custom("Almondita", 55)) << "in English";
}

}  // namespace
}  // namespace mirune
