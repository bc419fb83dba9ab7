#include "shared/diagnosis/item_problems.hpp"

#include "shared/diagnosis/day_problems.hpp"
#include "shared/shown_days.hpp"

namespace mirune {
namespace {

constexpr std::string_view pendingKey = "tasks";

/// Which items of a file a list shows while they are open.
struct ShownItems {
  WidgetDataType type = WidgetDataType::todo;
  DayKeys keys = {};
};

void appendIDProblems(const ItemFile& file, const ShownItems& shown, const ContainerContents& contents,
                      Problems& problems) {
  // As timelines do: a state that does not decode ticks nothing.
  const OverrideLookup done(contents.timelineOverrides.value_or(OverrideState{}));
  ProblemLines stopping;
  ProblemLines harmless;
  for (const auto& [key, items] : file) {
    for (std::size_t index = 0; index < items.size(); ++index) {
      const WidgetData& item = items[index];
      if (item.type == WidgetDataType::event || foundation::UUID::parse(item.id)) continue;
      const bool isShown = item.type == shown.type && shown.keys.contains(key) && !item.isOn && !done.contains(item.id);
      const std::string problem = placeOfID(key, index) + ": " + inQuotes(item.id) + " is no UUID: ";
      if (isShown) {
        stopping.add(problem + "drawing the timeline stops the extension");
      } else {
        harmless.add(problem + "harmless while no list shows the item");
      }
    }
  }
  stopping.appendTo(problems);
  harmless.appendTo(problems);
}

}  // namespace

Problems taskProblems(const ContainerContents& contents, const uikit::Platform& platform) {
  Problems problems;
  if (!contents.tasks) return problems;
  appendIDProblems(*contents.tasks, {.type = WidgetDataType::todo, .keys = shownDayKeys(platform)}, contents, problems);
  appendKeyProblems(*contents.tasks, std::nullopt, problems);
  return problems;
}

Problems pendingTaskProblems(const ContainerContents& contents, const uikit::Platform&) {
  Problems problems;
  if (!contents.pendingTasks) return problems;
  const ShownItems shown{.type = WidgetDataType::todo, .keys = {std::string(pendingKey)}};
  appendIDProblems(*contents.pendingTasks, shown, contents, problems);
  appendKeyProblems(*contents.pendingTasks, pendingKey, problems);
  return problems;
}

Problems habitProblems(const ContainerContents& contents, const uikit::Platform& platform) {
  Problems problems;
  if (!contents.habits) return problems;
  appendIDProblems(*contents.habits, {.type = WidgetDataType::habit, .keys = shownDayKeys(platform)}, contents,
                   problems);
  appendKeyProblems(*contents.habits, std::nullopt, problems);
  return problems;
}

Problems eventProblems(const ContainerContents& contents, const uikit::Platform&) {
  Problems problems;
  if (contents.events) appendKeyProblems(*contents.events, std::nullopt, problems);
  return problems;
}

Problems moodProblems(const ContainerContents& contents, const uikit::Platform&) {
  Problems problems;
  if (contents.moods) appendKeyProblems(*contents.moods, std::nullopt, problems);
  return problems;
}

}  // namespace mirune
