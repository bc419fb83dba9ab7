#include "foundation/fatal_error.hpp"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace foundation {
namespace {

constexpr int fatalExitStatus = 70;

}  // namespace

void fatalError(std::string_view message) {
  std::fflush(stdout);
  std::string line(message);
  std::ranges::replace(line, '\n', ' ');
  line += '\n';
  std::string_view rest = line;
  while (!rest.empty()) {
    const ssize_t written = ::write(STDERR_FILENO, rest.data(), rest.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) break;
    rest.remove_prefix(static_cast<std::size_t>(written));
  }
  std::_Exit(fatalExitStatus);
}

long long checkedSum(long long a, long long b) {
  long long result = 0;
  if (__builtin_add_overflow(a, b, &result)) fatalError("A sum is out of range.");
  return result;
}

long long checkedDifference(long long a, long long b) {
  long long result = 0;
  if (__builtin_sub_overflow(a, b, &result)) fatalError("A difference is out of range.");
  return result;
}

}  // namespace foundation
