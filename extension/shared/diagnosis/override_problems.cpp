#include "shared/diagnosis/override_problems.hpp"

#include <set>

namespace mirune {
namespace {

/// The comparable ids of all items that can be ticked; nothing where a file that may hold some does not decode.
std::optional<std::set<std::string>> knownIDs(const ContainerContents& contents) {
  std::set<std::string> known;
  for (const auto* file : {&contents.tasks, &contents.pendingTasks, &contents.habits}) {
    if (!*file) return std::nullopt;
    for (const auto& [key, items] : **file) {
      for (const WidgetData& item : items) known.insert(comparableID(item.id));
    }
  }
  return known;
}

void appendUnknownIDs(const OverrideState& state, const ContainerContents& contents, Problems& problems) {
  if (state.empty()) return;
  const auto known = knownIDs(contents);
  if (!known) return;
  ProblemLines lines;
  for (const auto& [id, date] : state) {
    if (known->contains(comparableID(id))) continue;
    lines.add(inQuotes(id) + " is no item of tasks.json, pendingtasks.json or habits.json: without effect");
  }
  lines.appendTo(problems);
}

/// What the second file says otherwise than the first.
void appendDifferences(const OverrideState& first, const OverrideState& second, Problems& problems) {
  const std::string other(overrideFile);
  ProblemLines lines;
  for (const auto& [id, date] : second) {
    const auto found = first.find(id);
    if (found == first.end()) {
      lines.add(inQuotes(id) + " is not in " + other);
    } else if (found->second != date) {
      lines.add(inQuotes(id) + " has another date in " + other);
    }
  }
  for (const auto& [id, date] : first) {
    if (!second.contains(id)) lines.add(inQuotes(id) + " is in " + other + " only: its item counts as open");
  }
  lines.appendTo(problems);
}

}  // namespace

Problems overrideProblems(const ContainerContents& contents, const uikit::Platform&) {
  Problems problems;
  if (contents.overrides) appendUnknownIDs(*contents.overrides, contents, problems);
  return problems;
}

Problems timelineOverrideProblems(const ContainerContents& contents, const uikit::Platform&) {
  Problems problems;
  if (!contents.timelineOverrides) return problems;
  appendUnknownIDs(*contents.timelineOverrides, contents, problems);
  if (contents.overrides) appendDifferences(*contents.overrides, *contents.timelineOverrides, problems);
  return problems;
}

}  // namespace mirune
