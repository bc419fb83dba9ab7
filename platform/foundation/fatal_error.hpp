#pragma once

#include <string_view>

namespace foundation {

/// Stops the process: for programming errors and for promises of the planner that are broken past repair.
/// The message goes to standard error as one line; the exit status is 70.
[[noreturn]] void fatalError(std::string_view message);

/// A sum that is known to fit; one that does not is a programming error.
long long checkedSum(long long a, long long b);
/// The same for a difference.
long long checkedDifference(long long a, long long b);

}  // namespace foundation
