#include "planner_folder.hpp"

#include <array>
#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "foundation/calendar.hpp"
#include "foundation/time_zone.hpp"
#include "measuring/sample.hpp"

namespace growing {
namespace {

/// As the planner numbers them.
enum class ItemType { task = 1, habit = 2, event = 3 };

std::string itemOf(ItemType type, int number) {
  const int minute = number * 7919 % 1380;
  std::array<char, 400> text = {};
  std::snprintf(text.data(), text.size(),
                R"({"type":%d,"id":"AAAAAAAA-0000-4000-8000-%012d","title":"Item number %d","isOn":false,)"
                R"("calid":"work","starttime":"2026-11-21T%02d:%02d:00Z","endtime":"2026-11-21T%02d:%02d:00Z",)"
                R"("allday":false,"colorHex":"#5B8DC9"})",
                static_cast<int>(type), number, number, minute / 60, minute % 60, (minute + 45) / 60,
                (minute + 45) % 60);
  return text.data();
}

void write(const std::filesystem::path& path, ItemType type, Amount amount) {
  std::ofstream file(path);
  for (int day = 0; day < amount.days; ++day) {
    const foundation::Date date = measuring::morning() + std::chrono::days(day);
    file << (day == 0 ? "{" : ",") << '"' << foundation::dayKey(date, foundation::TimeZone()) << "\":[";
    for (int i = day; i < amount.items; i += amount.days) file << (i == day ? "" : ",") << itemOf(type, i);
    file << ']';
  }
  file << '}';
  if (!file.flush()) throw std::runtime_error("the container cannot be written");
}

}  // namespace

PlannerFolder::PlannerFolder(const Contents& contents) {
  write(path() / "tasks.json", ItemType::task, contents.tasks);
  write(path() / "habits.json", ItemType::habit, contents.habits);
  write(path() / "events.json", ItemType::event, contents.events);
}

}  // namespace growing
