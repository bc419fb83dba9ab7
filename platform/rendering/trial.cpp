#include "rendering/trial.hpp"

#include <fcntl.h>
#include <signal.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "foundation/file_descriptor.hpp"

namespace rendering {
namespace {

constexpr unsigned mostSeconds = 10;

template <class Call>
auto retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// Ends this process when its time is over.
void limit(std::chrono::milliseconds processorTime) {
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
  ::signal(SIGPROF, SIG_DFL);
  ::signal(SIGALRM, SIG_DFL);
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(processorTime);
  const auto rest = std::chrono::microseconds(processorTime - seconds);
  const itimerval timer{.it_interval = {}, .it_value = {.tv_sec = seconds.count(), .tv_usec = rest.count()}};
  setitimer(ITIMER_PROF, &timer, nullptr);
  alarm(mostSeconds);
}

}  // namespace

bool succeedsWithin(std::chrono::milliseconds processorTime, const std::function<bool()>& work) {
  // The copy says by a pipe that it has done it: the status of its end is lost where such signals are ignored.
  std::array<int, 2> ends = {-1, -1};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return false;
  const foundation::FileDescriptor from(ends[0]);
  foundation::FileDescriptor to(ends[1]);
  const pid_t copy = ::fork();
  if (copy < 0) return false;
  char done = 0;
  if (copy == 0) {
    limit(processorTime);
    if (work()) retried([&] { return ::write(to.get(), &done, 1); });
    ::_exit(0);
  }
  to = {};
  const bool hasSucceeded = retried([&] { return ::read(from.get(), &done, 1); }) == 1;
  retried([&] { return ::waitpid(copy, nullptr, 0); });
  return hasSucceeded;
}

}  // namespace rendering
