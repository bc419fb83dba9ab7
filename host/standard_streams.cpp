#include "host/standard_streams.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace host {

void reserveStandardDescriptors() {
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(descriptor, F_GETFD) >= 0) continue;
    // The lowest free number is this one. Standard error must be writable: the extension's lines go there.
    open("/dev/null", descriptor == STDOUT_FILENO ? O_RDONLY : O_RDWR);
  }
}

int writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const auto count = write(descriptor, text.data(), text.size());
    if (count >= 0) {
      text.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

}  // namespace host
