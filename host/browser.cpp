#include "host/browser.hpp"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace host {

namespace {

/// The error number of starting it, else 0.
int start(pid_t& id, std::string& address) {
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  sigset_t signals;
  sigfillset(&signals);
  posix_spawnattr_setsigdefault(&attributes, &signals);
  sigemptyset(&signals);
  posix_spawnattr_setsigmask(&attributes, &signals);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  // Standard output is for the address alone.
  posix_spawn_file_actions_adddup2(&actions, STDERR_FILENO, STDOUT_FILENO);
  std::string program = "xdg-open";
  const std::array<char*, 3> arguments = {program.data(), address.data(), nullptr};
  const int error = posix_spawnp(&id, program.c_str(), &actions, &attributes, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  posix_spawnattr_destroy(&attributes);
  return error;
}

}  // namespace

std::optional<std::string> openInBrowser(std::string address) {
  pid_t id = 0;
  if (const int error = start(id, address); error != 0) return std::string("xdg-open: ") + std::strerror(error);
  int status = 0;
  while (::waitpid(id, &status, 0) < 0) {
    if (errno != EINTR) return std::nullopt;  // SIGCHLD is ignored, so nobody learns how it ended
  }
  if (status == 0) return std::nullopt;
  return "xdg-open could not open a browser";
}

}  // namespace host
