#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace support {

/// Runs an action in a process of its own, which ends with 1 where the action has failed a test.
inline pid_t inChild(const std::function<void()>& action) {
  const pid_t child = ::fork();
  if (child != 0) return child;
  action();
  ::_exit(testing::Test::HasFailure() ? 1 : 0);
}

inline int statusOf(pid_t child) {
  int status = 0;
  ::waitpid(child, &status, 0);
  return status;
}

}  // namespace support
