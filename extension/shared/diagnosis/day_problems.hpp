#pragma once

#include <optional>
#include <ranges>
#include <string_view>

#include "shared/diagnosis/problem_lines.hpp"

namespace mirune {

/// Whether a key is a day of the form yyyy/MM/dd.
bool isDayKey(std::string_view key);

/// The keys of a file that are no days, but for one that has a meaning of its own.
template <class File>
void appendKeyProblems(const File& file, std::optional<std::string_view> meaningful, Problems& problems) {
  ProblemLines lines;
  for (const std::string& key : file | std::views::keys) {
    if (key != meaningful && !isDayKey(key))
      lines.add(inQuotes(key) + " is no day of the form yyyy/MM/dd: never shown");
  }
  lines.appendTo(problems);
}

}  // namespace mirune
