#include "timelines/task_entries.hpp"

#include "foundation/fatal_error.hpp"
#include "shared/item_files.hpp"
#include "shared/override_state.hpp"
#include "shared/shown_days.hpp"
#include "timelines/color_offset.hpp"
#include "timelines/days.hpp"

namespace mirune {
namespace {

/// What tells tasks and habits apart.
struct ListKind {
  WidgetDataType type = WidgetDataType::todo;
  std::int64_t itemtype = taskItems;  ///< of a day that has items
  const char* name = "";
};

constexpr ListKind tasks{.type = WidgetDataType::todo, .itemtype = taskItems, .name = "Tasks"};
constexpr ListKind habits{.type = WidgetDataType::habit, .itemtype = habitItems, .name = "Habits"};

/// The files of a list.
struct Items {
  ItemFile byDay = {};
  std::vector<WidgetData> everyDay = {};
};

void count(const WidgetData& item, const ListKind& kind, const OverrideLookup& done, TaskEntry& entry) {
  if (item.type != kind.type) return;
  ++entry.totalTaskCount;
  if (item.isOn || done.contains(item.id)) return;
  const auto id = foundation::UUID::parse(item.id);
  if (!id) foundation::fatalError("an item's id is no UUID: '" + item.id + "'");
  ++entry.count;
  entry.data.push_back({.id = *id, .title = item.title, .isOn = item.isOn, .date = entry.date});
}

std::vector<TaskEntry> entriesOf(const ListKind& kind, std::int64_t offset, const Items& items,
                                 const uikit::Platform& platform) {
  const OverrideLookup done(readOverrideState(platform));
  const auto start = platform.calendar.startOfDay(platform.now);
  std::vector<TaskEntry> entries;
  for (int i = 0; i < shownDays; ++i) {
    TaskEntry entry = emptyTaskEntry(dayAfter(platform.calendar, start, i), platform.words.localized(kind.name));
    entry.image = badgeNumber(offset, platform.calendar, entry.date);
    const auto& dated = itemsUnder(items.byDay, foundation::dayKey(entry.date, platform.calendar.timeZone()));
    if (!dated.empty() || !items.everyDay.empty()) entry.itemtype = kind.itemtype;
    for (const WidgetData& item : dated) count(item, kind, done, entry);
    for (const WidgetData& item : items.everyDay) count(item, kind, done, entry);
    entries.push_back(std::move(entry));
  }
  return entries;
}

}  // namespace

std::vector<TaskEntry> taskEntries(const uikit::Platform& platform) {
  // The offset is fixed before any file is read, as the planner expects of the first request.
  const std::int64_t offset = fixedColorOffset(platform);
  Items items{.byDay = readItemFile(platform, "tasks", shownDayKeys(platform))};
  constexpr auto pendingKey = "tasks";
  items.everyDay = itemsUnder(readItemFile(platform, "pendingtasks", {pendingKey}), pendingKey);
  return entriesOf(tasks, offset, items, platform);
}

std::vector<TaskEntry> habitEntries(const uikit::Platform& platform) {
  const std::int64_t offset = fixedColorOffset(platform);
  return entriesOf(habits, offset, {.byDay = readItemFile(platform, "habits", shownDayKeys(platform))}, platform);
}

}  // namespace mirune
