#include "shared/diagnosis.hpp"

#include <array>

#include "shared/diagnosis/item_problems.hpp"
#include "shared/diagnosis/override_problems.hpp"
#include "shared/diagnosis/settings_problems.hpp"

namespace mirune {
namespace {

using messages::FileState;
using Contents = ContainerContents;

/// A file that widgets read.
struct SharedFile {
  std::string_view name = {};  ///< below the container
  DecodeFile decode = nullptr;
  Problems (*problems)(const Contents& contents, const uikit::Platform& platform) = nullptr;
  const char* whenMissing = "";
  const char* whenRefused = "";  ///< or not to be read
};

constexpr auto noTasks = "Tasks: no tasks on any day but the pending ones; the same in Events and Tasks";
constexpr auto noPendingTasks = "Tasks: no pending tasks; the same in Events and Tasks";
constexpr auto noHabits = "Habits: no habits on any day";
constexpr auto noEvents = "Events: no events on any day; the same in Events and Tasks";
constexpr auto noMoods = "Mood Check-In and Moods: no mood on any day";

constexpr std::array<SharedFile, 8> sharedFiles{{
    {.name = "tasks.json",
     .decode = decodeJSONFile<&Contents::tasks>,
     .problems = taskProblems,
     .whenMissing = noTasks,
     .whenRefused = noTasks},
    {.name = "pendingtasks.json",
     .decode = decodeJSONFile<&Contents::pendingTasks>,
     .problems = pendingTaskProblems,
     .whenMissing = noPendingTasks,
     .whenRefused = noPendingTasks},
    {.name = "habits.json",
     .decode = decodeJSONFile<&Contents::habits>,
     .problems = habitProblems,
     .whenMissing = noHabits,
     .whenRefused = noHabits},
    {.name = "events.json",
     .decode = decodeJSONFile<&Contents::events>,
     .problems = eventProblems,
     .whenMissing = noEvents,
     .whenRefused = noEvents},
    {.name = "moods.json",
     .decode = decodeJSONFile<&Contents::moods>,
     .problems = moodProblems,
     .whenMissing = noMoods,
     .whenRefused = noMoods},
    {.name = overrideFile,
     .decode = decodeJSONFile<&Contents::overrides>,
     .problems = overrideProblems,
     .whenMissing = "no item has been ticked on a widget",
     .whenRefused = "the next tick replaces the file"},
    {.name = timelineOverrideFile,
     .decode = decodeJSONFile<&Contents::timelineOverrides>,
     .problems = timelineOverrideProblems,
     .whenMissing = "no item counts as ticked on a widget",
     .whenRefused = "no item counts as ticked on a widget; the next tick replaces the file"},
    {.name = "Library/Preferences/group.quorvanthimble.app.plist",
     .decode = openSettings,
     .problems = settingsProblems,
     .whenMissing = "light theme; the next timeline fixes the colour offset",
     .whenRefused = "light theme; the colour offset follows the day, for it is not stored"},
}};

const char* consequence(const SharedFile& file, FileState state) {
  switch (state) {
    case FileState::missing:
      return file.whenMissing;
    case FileState::unreadable:
    case FileState::refused:
      return file.whenRefused;
    case FileState::decoded:
      return "";
  }
  __builtin_unreachable();
}

}  // namespace

messages::Diagnosis diagnoseContainer(const uikit::Platform& platform) {
  const auto container = platform.files.containerURL();
  if (!container) return {.hasContainer = false};
  messages::Diagnosis diagnosis{.hasContainer = true};
  Contents contents;
  // All files are read first, for some problems show only between two of them.
  for (const SharedFile& file : sharedFiles) {
    auto& described =
        diagnosis.files.emplace_back(readSharedFile(platform, *container, file.name, file.decode, contents));
    described.consequence = consequence(file, described.state);
  }
  for (std::size_t index = 0; index < sharedFiles.size(); ++index) {
    const Problems problems = sharedFiles[index].problems(contents, platform);
    auto& all = diagnosis.files[index].problems;
    all.insert(all.end(), problems.begin(), problems.end());
  }
  return diagnosis;
}

}  // namespace mirune
