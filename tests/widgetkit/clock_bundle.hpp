#pragma once

#include "widgetkit/extension_service.hpp"

// A tiny extension: a clock that shows a word.

namespace widgetkit {

struct ClockEntry {
  foundation::Date date = {};
  std::string word = {};
};

inline void to_json(foundation::JSON& json, const ClockEntry& entry) {
  json = {{"date", foundation::JSON(entry.date)}, {"word", entry.word}};
}
inline void from_json(const foundation::JSON& json, ClockEntry& entry) {
  entry = {.date = json.at("date").get<foundation::Date>(), .word = json.at("word").get<std::string>()};
}

struct ClockProvider {
  using Entry = ClockEntry;

  ClockEntry placeholder(const uikit::Platform& platform) const { return {.date = platform.now, .word = "soon"}; }
  ClockEntry snapshot(const uikit::Platform& platform) const { return {.date = platform.now, .word = "now"}; }
  Timeline<ClockEntry> timeline(const uikit::Platform& platform) const {
    const auto later = platform.now + std::chrono::hours(1);
    return {.entries = {{.date = platform.now, .word = "one"}, {.date = later, .word = "two"}},
            .policy = TimelineReloadPolicy::after(later)};
  }
};

inline swiftui::View clockView(const ClockEntry& entry) {
  if (entry.word == "undrawable") throw DrawingError("no such hour");
  if (entry.word == "link") return swiftui::link("https://a/b", swiftui::text("go")).widgetURL("https://a/");
  return swiftui::toggle({.isOn = true}, swiftui::text(entry.word))
      .containerBackground(swiftui::filled(swiftui::Rectangle{}).foregroundColor(uikit::RGBA{.red = 1}));
}

struct ClockBundle {
  std::vector<StaticConfiguration> body(const uikit::Platform& platform) const {
    using enum swiftui::WidgetFamily;
    const auto clock = StaticConfiguration("Clock_Widget", ClockProvider{}, clockView)
                           .shortName("clock")
                           .description("Tells the time")
                           .supportedFamilies({systemSmall, accessoryInline});
    // What a widget is called may depend on the device.
    const bool isNew = platform.systemVersion >= 17;
    return {clock.configurationDisplayName(isNew ? "Clock" : "Old clock"),
            StaticConfiguration("Bare_Widget", ClockProvider{}, clockView).shortName("bare").contentMarginsDisabled()};
  }
};

inline ExtensionService clockService() {
  return ExtensionService(
      {.widgets = [](const uikit::Platform& platform) { return ClockBundle().body(platform); },
       .perform = [](const std::string& intent, const foundation::JSON& parameters,
                     const uikit::Platform&) { return intent == "Wind" && parameters.at("turns").get<int>() > 0; },
       .diagnose = [](const uikit::Platform&) { return messages::Diagnosis{}; },
       .nameDevice =
           [](const std::optional<std::string>& identifier) { return identifier.value_or("this") + " clock"; }},
      {.folder = "no resources"});
}

}  // namespace widgetkit
