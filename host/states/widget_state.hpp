#pragma once

#include <expected>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "foundation/json.hpp"
#include "messages/world.hpp"

namespace host {

/// A situation that widgets are looked at in: a full day, no file at all, another language. What is absent is as in the
/// sample container and in the world that is given.
struct WidgetState {
  struct Event {
    std::string title = {};
    std::string start = {};  ///< "08:30"; empty for an event that lasts the whole day
    std::string end = {};
  };
  enum class Day { given, firstOfMonth, lastOfMonth };

  std::string name = {};  ///< lower case, hyphens: a file's name
  std::optional<std::vector<std::string>> tasks = std::nullopt;
  std::optional<std::vector<std::string>> habits = std::nullopt;
  std::optional<std::vector<Event>> events = std::nullopt;
  /// Moods are kept from the first to the second day, counted from today; of none the second lies before the first.
  std::optional<std::pair<int, int>> moods = std::nullopt;
  bool isDone = false;  ///< all tasks and habits are
  bool hasNoContainer = false;
  bool isDark = false;  ///< the planner's theme and the system's
  bool isRedacted = false;
  Day day = Day::given;
  std::optional<std::string> locale = std::nullopt;
  std::optional<std::string> screen = std::nullopt;
  std::optional<int> systemVersion = std::nullopt;

  /// The world as it is in this state, with its container there. A given day is at 9 in the morning.
  messages::World world(messages::World given, const std::filesystem::path& container) const;
};

/// The states of a file, in its order; else one line that says what is wrong.
std::expected<std::vector<WidgetState>, std::string> readStates(const std::filesystem::path& file);

/// {"name": "one", "tasks": ["Water the ferns"], "events": [["08:30", "09:30", "Breakfast"], ["All day"]],
///  "moods": [-45, -1]}. Throws foundation::JSON::exception where it is something else.
void from_json(const foundation::JSON& json, WidgetState& state);

}  // namespace host
