#pragma once

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace support {

/// Makes this process one that may mount, for itself alone; false where the machine lets nobody.
inline bool leaveTheMountsOfOthers() {
  const std::string user = "0 " + std::to_string(::geteuid()) + " 1";
  const std::string group = "0 " + std::to_string(::getegid()) + " 1";
  const auto write = [](const char* file, const std::string& text) {
    return static_cast<bool>(std::ofstream(file) << text << std::flush);
  };
  const bool hasLeft = ::unshare(CLONE_NEWNS) == 0 ||
                       (::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && write("/proc/self/setgroups", "deny") &&
                        write("/proc/self/uid_map", user) && write("/proc/self/gid_map", group));
  return hasLeft && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

/// Mounts a file system of 64 KiB, or mounts it once more for reading only.
inline bool mountSmallDisk(const std::filesystem::path& folder) {
  return ::mount("small", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
}
inline bool makeReadOnly(const std::filesystem::path& folder) {
  return ::mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}
inline bool makeWritable(const std::filesystem::path& folder) {
  return ::mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT, nullptr) == 0;
}

/// Writes a file until no byte more can be written.
inline void fillDisk(const std::filesystem::path& file) {
  std::ofstream filler(file, std::ios::binary);
  while (filler.write("x", 1).flush()) {
  }
}

}  // namespace support
