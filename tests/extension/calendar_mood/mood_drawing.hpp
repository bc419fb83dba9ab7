#pragma once

#include "calendar_mood/accent_color.hpp"
#include "timelines/entry_coding.hpp"
#include "widget_scene.hpp"

namespace mirune {

inline MiruneDailyMood someMood(const std::string& icon = "cat-circle_calm") {
  return {.id = "calm", .name = "Calm", .icon = icon, .color = "#7DBF9E"};
}

/// An entry of a month in which every day has that mood, drawn on its `day`th day.
inline MoodEntry moodEntryOf(int days, const MiruneDailyMood& mood, std::int64_t day = 21) {
  MoodEntry entry{.date = moment("2026-11-21T08:00:00Z"), .text = "SEPTEMBER 2026", .day = day};
  for (int number = 1; number <= days; ++number) {
    entry.monthdata.push_back({.moodData = mood, .text = std::to_string(number)});
  }
  for (int number = 16; number <= 21; ++number) {
    entry.data.push_back({.moodData = mood, .text = std::to_string(number)});
  }
  return entry;
}

/// "mood" or "moods" as the host has it drawn.
inline rendering::Scene moodScene(const std::string& kind, const MoodEntry& entry, swiftui::WidgetFamily family,
                                  const uikit::Platform& platform = platformAt({}, "")) {
  return widgetScene(kind, foundation::JSON(entry), family, platform);
}

/// The four screens that differ the most, and the narrowest of them.
inline const std::vector<std::string> screens{"390x844", "375x667", "430x932", "320x568"};

inline uikit::Platform platformOn(const std::string& screen) {
  auto platform = platformAt({}, "");
  platform.screen = uikit::Screen::parse(screen).value();
  return platform;
}

/// The same, with every text whole.
inline void expectWholeWithin(const rendering::Scene& scene, double margin) {
  expectWithin(scene, margin);
  for (const auto& text : textsOf(scene)) EXPECT_EQ(text.find("…"), std::string::npos) << text;
}

/// That things are squares of one size, and how long their sides are.
inline double sideOf(const std::vector<nlohmann::json>& things) {
  double side = 0;
  for (const auto& thing : things) {
    const double width = thing.at("frame").at(2);
    if (side == 0) side = width;
    EXPECT_NEAR(width, side, 0.02) << thing;
    EXPECT_NEAR(thing.at("frame").at(3).get<double>(), side, 0.02) << thing;
  }
  return side;
}

}  // namespace mirune
