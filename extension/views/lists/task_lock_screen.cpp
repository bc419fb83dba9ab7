#include "lists/task_lock_screen.hpp"

#include "foundation/fatal_error.hpp"
#include "lists/lockscreen_toggle.hpp"
#include "lists/system_features.hpp"
#include "lists/todo_content.hpp"

namespace mirune {

using namespace swiftui;

namespace {

constexpr double fontSize = 14.5;
/// Rows with boxes of 16 points take more height than those without.
constexpr std::size_t interactiveRows = 2;
constexpr std::size_t plainRows = 3;

View row(const TaskWidgetInner& item, bool isInteractive) {
  if (isInteractive) return LockscreenToggle{.id = item.id.string(), .text = item.title, .date = item.date};
  return View(TodoContent{.on = item.isOn, .text = item.title}).font(system(fontSize));
}

View rows(const TaskEntry& entry, bool isInteractive) {
  std::vector<View> views;
  for (const TaskWidgetInner& item : entry.data) {
    if (views.size() == (isInteractive ? interactiveRows : plainRows)) break;
    views.push_back(row(item, isInteractive));
  }
  return vstack({.alignment = HorizontalAlignment::leading, .spacing = isInteractive ? 6 : 2}, std::move(views))
      // Half the pen of a box lies outside it.
      .padding({.leading = 0.5});
}

View fillingWidth(const View& content) {
  return content.frame({.maxWidth = infinity, .alignment = Alignment::leading});
}

}  // namespace

View TaskCircularView::body(const EnvironmentValues& environment) const {
  const uikit::Platform& platform = *environment.platform;
  if (entry.totalTaskCount < 1) {
    return text(platform.words.localized("All Completed"))
        .font(system(fontSize))
        .multilineTextAlignment(TextAlignment::center)
        .minimumScaleFactor(0.5)
        .padding(2);
  }
  if (platform.systemVersion < gaugeVersion) return text(entry.name).minimumScaleFactor(0.1).lineLimit(1);
  const long long done = foundation::checkedDifference(entry.totalTaskCount, entry.count);
  return gauge({.value = static_cast<double>(done), .total = static_cast<double>(entry.totalTaskCount)},
               text(entry.name).font(system(10, FontWeight::medium)),
               text(std::to_string(done)).font(system(24, FontWeight::medium, FontDesign::rounded)));
}

View TaskRectangularView::body(const EnvironmentValues& environment) const {
  const uikit::Platform& platform = *environment.platform;
  if (entry.count < 1) {
    const char* key = entry.itemtype == taskItems ? "No Tasks Left" : "No Habits Left";
    return fillingWidth(text(platform.words.localized(key)).font(system(fontSize)));
  }
  return fillingWidth(rows(entry, platform.systemVersion >= interactiveVersion));
}

}  // namespace mirune
