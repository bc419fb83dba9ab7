#include "home/default_layout.hpp"

#include "home/arrangement.hpp"

namespace home {

namespace {

constexpr const char* quote = "Mirune_Widgets";
constexpr const char* tasks = "Mirune_Widgets2";
constexpr const char* habits = "Mirune_Widgets3";
constexpr const char* events = "Mirune_Widgets4";
constexpr const char* mood = "Mirune_Widgets5";
constexpr const char* moods = "Mirune_Widgets6";
constexpr const char* calendar = "Mirune_Widgets7";
constexpr const char* combined = "Mirune_Widgets8";

}  // namespace

std::vector<PlacedWidget> defaultLayout() {
  std::vector<PlacedWidget> widgets;
  for (const auto& [kind, family] : {std::pair{tasks, "systemSmall"},
                                     {calendar, "systemSmall"},
                                     {mood, "systemMedium"},
                                     {events, "systemMedium"},
                                     {habits, "systemSmall"},
                                     {moods, "systemSmall"},
                                     {combined, "systemMedium"},
                                     {quote, "systemMedium"},
                                     {events, "accessoryInline"},
                                     {tasks, "accessoryCircular"},
                                     {habits, "accessoryCircular"},
                                     {events, "accessoryRectangular"}}) {
    const Place place = placeOfFamily(family);
    widgets.push_back({.kind = kind, .family = family, .place = place, .position = endOf(widgets, place)});
  }
  return widgets;
}

}  // namespace home
