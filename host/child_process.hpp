#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>

namespace host {

/// Owns a process that this one started: it never outlives this value, and never stays behind as a zombie.
class ChildProcess {
 public:
  explicit ChildProcess(pid_t id) : id_(id) {}
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  ~ChildProcess() { kill(); }

  /// Waits until the process has ended, at most that long. Whether it has.
  bool waitFor(std::chrono::milliseconds limit);

  /// Ends the process at once, if it has not ended by itself.
  void kill();

  /// "it ended with status 70", "it was ended by signal 11 (Segmentation fault)". Nothing while it runs, and after
  /// kill() had to end it.
  const std::optional<std::string>& ending() const { return ending_; }

 private:
  pid_t id_;
  bool reaped_ = false;
  std::optional<std::string> ending_;
};

}  // namespace host
