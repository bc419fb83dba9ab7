#include "home/folder_lock.hpp"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <system_error>
#include <thread>

namespace home {

FolderLock::FolderLock(const std::filesystem::path& folder, std::chrono::milliseconds limit)
    : folder_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  const auto fail = [&](const char* what) {
    throw std::system_error(errno, std::generic_category(), what + folder.string());
  };
  if (!folder_.isOpen()) fail("cannot open ");
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (::flock(folder_.get(), LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return;
    if (std::chrono::steady_clock::now() >= deadline) fail("another process holds ");
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
}

}  // namespace home
