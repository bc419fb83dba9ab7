#include "planner_files.hpp"

#include <array>
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "foundation/calendar.hpp"
#include "foundation/iso8601.hpp"
#include "foundation/time_zone.hpp"
#include "foundation/uuid.hpp"

namespace benchmarks {
namespace {

using foundation::Date;
using std::chrono::days;
using std::chrono::minutes;

constexpr std::array<const char*, 12> taskTitles = {"Water the plants",
                                                    "Take out the paper",
                                                    "Answer the letters of the week",
                                                    "Buy bread and milk",
                                                    "Call grandma",
                                                    "Pay the electricity bill",
                                                    "Clean the kitchen",
                                                    "Back up the photographs",
                                                    "Return library books",
                                                    "Book the dentist",
                                                    "Wash the car",
                                                    "Prepare tomorrow's meeting"};
constexpr std::array<const char*, 10> habitTitles = {"Drink two litres of water",
                                                     "Read for twenty minutes",
                                                     "Morning run",
                                                     "Stretch",
                                                     "No sugar",
                                                     "Write the diary",
                                                     "Practise the piano",
                                                     "Meditate",
                                                     "Early to bed",
                                                     "Learn ten words of Portuguese"};
constexpr std::array<const char*, 10> eventTitles = {"Team round",
                                                     "Design review",
                                                     "Lunch with Lena",
                                                     "Yoga class",
                                                     "Parents' evening",
                                                     "Train to M\u00fcnchen",
                                                     "Dentist",
                                                     "Piano lesson",
                                                     "Flat viewing, 3rd floor",
                                                     "Budget: \\\"next year\\\""};
constexpr std::array<const char*, 5> moodNames = {"Happy", "Content", "Meh", "Tired", "Sad"};
constexpr std::array<const char*, 5> colors = {"#C2688F", "#D9923B", "#5B8DC9", "#7BA05B", "#8E7CC3"};

/// Even numbers, the same on every machine.
class Dice {
 public:
  std::uint64_t next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EBU;
    return mixed ^ mixed >> 31;
  }
  std::size_t below(std::size_t limit) { return next() % limit; }
  bool happens(unsigned percent) { return below(100) < percent; }

  template <class Choices>
  const char* oneOf(const Choices& choices) {
    return choices[below(choices.size())];
  }

  std::string uuid() {
    return foundation::UUID::random([this] { return next(); }).string();
  }

 private:
  std::uint64_t state_ = 0;
};

struct Item {
  int type = 0;
  std::string id = {};
  std::string title = {};
  bool isOn = false;
  const char* calid = "";
  Date start = {};
  Date end = {};
  bool allday = false;
  const char* color = nullptr;
};

std::string truth(bool value) {
  return value ? "true" : "false";
}

std::string textOf(const Item& item) {
  std::string text = R"({"type":)" + std::to_string(item.type) + R"(,"id":")" + item.id + R"(","title":")" +
                     item.title + R"(","isOn":)" + truth(item.isOn) + R"(,"calid":")" + item.calid +
                     R"(","starttime":")" + foundation::formatISO8601(item.start) + R"(","endtime":")" +
                     foundation::formatISO8601(item.end) + R"(","allday":)" + truth(item.allday);
  if (item.color != nullptr) text += std::string(R"(,"colorHex":")") + item.color + '"';
  return text + '}';
}

/// A list as JSON writes it.
class List {
 public:
  explicit List(const char* brackets) : text_(1, brackets[0]), end_(brackets[1]) {}
  void add(const std::string& value) {
    if (text_.size() > 1) text_ += ',';
    text_ += value;
  }
  std::size_t size() const { return text_.size(); }
  std::string text() && { return std::move(text_) + end_; }

 private:
  std::string text_;
  char end_;
};

std::string member(const std::string& key, const std::string& value) {
  return '"' + key + "\":" + value;
}

std::string keyOf(Date day) {
  return foundation::dayKey(day, foundation::TimeZone());
}

std::string tasksOf(Date day, Dice& dice, bool isPast, int count) {
  List tasks("[]");
  for (int i = 0; i < count; ++i) {
    const Date start = day + minutes(15 * dice.below(96));
    tasks.add(textOf({.type = 1,
                      .id = dice.uuid(),
                      .title = dice.oneOf(taskTitles),
                      .isOn = isPast && dice.happens(90),
                      .calid = "reminders",
                      .start = start,
                      .end = start,
                      .color = dice.happens(30) ? dice.oneOf(colors) : nullptr}));
  }
  return std::move(tasks).text();
}

/// A habit keeps its id, and mostly goes on as on the day before.
struct Habit {
  std::string id = {};
  const char* title = "";
  bool isKept = true;
};

std::string habitsOf(Date day, Dice& dice, bool isPast, std::vector<Habit>& habits) {
  List list("[]");
  for (Habit& habit : habits) {
    if (dice.happens(10)) habit.isKept = !habit.isKept;
    list.add(textOf({.type = 2,
                     .id = habit.id,
                     .title = habit.title,
                     .isOn = isPast && habit.isKept,
                     .calid = "habits",
                     .start = day,
                     .end = day + minutes(1439),
                     .allday = true,
                     .color = colors[habit.id.front() % colors.size()]}));
  }
  return std::move(list).text();
}

std::string eventsOf(Date day, Dice& dice) {
  List events("[]");
  for (std::size_t i = 0, count = 6 + dice.below(6); i < count; ++i) {
    const Date start = day + minutes(420 + 15 * dice.below(56));
    events.add(textOf({.type = 3,
                       .id = dice.uuid(),
                       .title = dice.oneOf(eventTitles),
                       .calid = dice.happens(60) ? "work" : "family",
                       .start = start,
                       .end = start + minutes(30 * (1 + dice.below(4))),
                       .allday = dice.happens(5),
                       .color = dice.oneOf(colors)}));
  }
  return std::move(events).text();
}

std::string moodOf(Dice& dice) {
  const std::string name = dice.oneOf(moodNames);
  return R"({"id":")" + dice.uuid() + R"(","name":")" + name + R"(","icon":"cat-circle_)" + name + R"(","color":")" +
         dice.oneOf(colors) + R"(","isOriginalColor":true,"hasBeenDeleted":false})";
}

void writeFile(const std::filesystem::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  if (!file.flush()) throw std::runtime_error(path.string() + " cannot be written");
}

}  // namespace

Date readingMoment() {
  return *foundation::parseMoment("2026-11-21T08:00:00Z");
}

std::string eventsOfSize(std::size_t bytes) {
  Dice dice;
  List file("{}");
  for (Date day = std::chrono::floor<days>(readingMoment()); file.size() < bytes; day += days(1)) {
    file.add(member(keyOf(day), eventsOf(day, dice)));
  }
  return std::move(file).text();
}

void writeTenYears(const std::filesystem::path& folder) {
  constexpr int exportedDays = 3653;
  constexpr int shownDays = 15;
  constexpr int tasksOfADay = 9;
  constexpr int pendingTasks = 40;
  const Date today = std::chrono::floor<days>(readingMoment());

  Dice dice;
  std::vector<Habit> habitsKept;
  for (const char* title : habitTitles) habitsKept.push_back({.id = dice.uuid(), .title = title});
  List tasks("{}");
  List habits("{}");
  List events("{}");
  List moods("{}");
  for (int number = shownDays - exportedDays; number < shownDays; ++number) {
    const Date day = today + days(number);
    const std::string key = keyOf(day);
    tasks.add(member(key, tasksOf(day, dice, day < today, tasksOfADay)));
    habits.add(member(key, habitsOf(day, dice, day < today, habitsKept)));
    events.add(member(key, eventsOf(day, dice)));
    if (day <= today && dice.happens(90)) moods.add(member(key, moodOf(dice)));
  }
  List pending("{}");
  pending.add(member("tasks", tasksOf(today, dice, false, pendingTasks)));

  std::filesystem::create_directories(folder);
  writeFile(folder / "tasks.json", std::move(tasks).text());
  writeFile(folder / "pendingtasks.json", std::move(pending).text());
  writeFile(folder / "habits.json", std::move(habits).text());
  writeFile(folder / "events.json", std::move(events).text());
  writeFile(folder / "moods.json", std::move(moods).text());
}

}  // namespace benchmarks
