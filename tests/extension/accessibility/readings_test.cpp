#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ranges>

#include "every_widget.hpp"

namespace mirune {
namespace {

const std::string tasks = "[ ] item 1\n[ ] item 2\n";
const std::string taskList = tasks + "[ ] item 3\n+1 more\n";
const std::string noHabits = "Habits\nSaturday, November 21\nNo more habits today\n";
const std::string eventList =
    "Events\nSaturday, November 21\nGrandma visits, All Day\n"
    "item 6, 10:00 AM - 11:00 AM\nitem 7, 10:00 AM - 11:00 AM\n+1 more\n";

/// Whole readings; those of a month are read below.
const std::map<std::string, std::string> readings{
    {"mood systemMedium",
     "How are you feeling today?\n"
     "Monday, November 16 <https://planner.example/mood/5>\n"
     "Tuesday, November 17 <https://planner.example/mood/4>\n"
     "Wednesday, November 18 <https://planner.example/mood/3>\n"
     "Thursday, November 19 <https://planner.example/mood/2>\n"
     "Friday, November 20, Calm <https://planner.example/mood/1>\n"
     "Today, Calm <https://planner.example/mood/0>\n"},
    {"mood systemSmall", "How are you feeling today?\nCalm\n<https://planner.example/mood/0>\n"},
    {"tasks accessoryCircular", "Tasks (0 of 4)\n"},
    {"tasks accessoryRectangular", tasks},
    {"tasks systemSmall", "Tasks\nSaturday, November 21\n" + taskList},
    {"tasks systemMedium", "Tasks\nSaturday, November 21\n" + taskList},
    {"habits accessoryCircular", "All Completed\n"},
    {"habits systemSmall", noHabits},
    {"habits systemMedium", noHabits},
    {"events accessoryRectangular", "Grandma visits, All Day\n+3 more\n"},
    {"events accessoryInline", " Grandma visits\n"},
    {"events systemSmall", eventList},
    {"combined systemMedium", eventList + "Tasks\n" + taskList},
};

/// A platform's times have a narrow blank before the day period.
std::string withPlainBlanks(std::string text) {
  constexpr std::string_view narrow = "\u202F";
  for (auto at = text.find(narrow); at != std::string::npos; at = text.find(narrow))
    text.replace(at, narrow.size(), " ");
  return text;
}

TEST(Readings, SayWhatIsSeen) {
  FilledPlanner planner;
  std::size_t read = 0;
  for (const auto& [name, family, scene] : everyWidget(planner.platform())) {
    const auto expected = readings.find(name);
    if (expected == readings.end()) continue;
    EXPECT_EQ(withPlainBlanks(rendering::plainText(scene)), expected->second) << name;
    ++read;
  }
  EXPECT_EQ(read, readings.size());
}

/// A column of the month grid and a colour tell what only sight tells unless it is said: the weekday, and today.
TEST(Readings, NameTheDaysOfAMonth) {
  const struct {
    const char* widget;
    std::size_t firstDay;
    std::vector<std::string> beginning;
    std::string today;
  } rows[] = {
      {"calendar systemSmall",
       8,
       {"November", "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday, November 1"},
       "Today, Saturday, November 21"},
      {"events systemMedium", 8, {"November", "Sunday"}, "Today, Saturday, November 21"},
      {"moods systemSmall", 1, {"NOVEMBER 2026", "1", "2, Calm"}, "Today, 21, Calm"},
      {"moods systemLarge", 1, {"NOVEMBER 2026", "1", "2, Calm"}, "Today, 21, Calm"},
  };
  FilledPlanner planner;
  const auto widgets = everyWidget(planner.platform());
  for (const auto& row : rows) {
    SCOPED_TRACE(row.widget);
    const auto widget = std::ranges::find(widgets, row.widget, &DrawnWidget::name);
    ASSERT_NE(widget, widgets.end());
    std::vector<std::string> said;
    for (const auto& item : widget->scene.meaning) said.push_back(item.label);
    ASSERT_GE(said.size(), row.firstDay + 30);
    EXPECT_TRUE(std::ranges::equal(row.beginning, said | std::views::take(std::ssize(row.beginning))));
    EXPECT_EQ(said.at(row.firstDay + 20), row.today);
    EXPECT_EQ(std::ranges::count_if(said, [](const auto& each) { return each.starts_with("Today"); }), 1);
  }
}

}  // namespace
}  // namespace mirune
