#include "host/child_process.hpp"

#include <signal.h>
#include <string.h>
#include <sys/wait.h>

#include <cerrno>
#include <thread>

namespace host {

namespace {

std::string describe(int status) {
  if (WIFSIGNALED(status)) {
    const int number = WTERMSIG(status);
    return "it was ended by signal " + std::to_string(number) + " (" + strsignal(number) + ")";
  }
  return "it ended with status " + std::to_string(WEXITSTATUS(status));
}

/// waitpid() that is not disturbed by signals.
pid_t reap(pid_t id, int& status, int options) {
  for (;;) {
    const pid_t result = waitpid(id, &status, options);
    if (result >= 0 || errno != EINTR) return result;
  }
}

}  // namespace

bool ChildProcess::waitFor(std::chrono::milliseconds limit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (!reaped_) {
    int status = 0;
    const pid_t result = reap(id_, status, WNOHANG);
    if (result != 0) {  // ended, or (-1) already reaped because SIGCHLD is ignored
      reaped_ = true;
      if (result > 0) ending_ = describe(status);
    } else if (std::chrono::steady_clock::now() >= deadline) {
      return false;
    } else {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }
  return true;
}

void ChildProcess::kill() {
  if (waitFor(std::chrono::milliseconds(0))) return;
  ::kill(id_, SIGKILL);
  int status = 0;
  reap(id_, status, 0);
  reaped_ = true;
}

}  // namespace host
