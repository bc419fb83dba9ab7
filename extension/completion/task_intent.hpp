#pragma once

#include <optional>
#include <string>
#include <vector>

#include "appintents/app_intent.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// "Mark Task Complete": what a tap on a check box performs, without opening the planner.
struct TaskIntent {
  static constexpr std::string_view name = "TaskIntent";
  static constexpr std::string_view title = "Mark Task Complete";

  std::string id = {};                                  ///< of the item
  std::optional<foundation::Date> date = std::nullopt;  ///< the day that it is marked for; absent takes the mark back

  std::vector<appintents::IntentParameter> parameters() const {
    return {{.title = "id", .value = id}, {.title = "date", .value = date}};
  }

  /// Records the mark in both override files of the container, each by itself: a file that is missing or does not
  /// decode starts from nothing, one that cannot be written is left. Two taps at the same moment may overwrite each
  /// other's mark, but never leave a torn file. Never fails; the debug log says what happened.
  void perform(const uikit::Platform& platform) const;
};

}  // namespace mirune
