#pragma once

#include <chrono>
#include <filesystem>

#include "foundation/file_descriptor.hpp"

namespace home {

/// Keeps other processes that ask for the same lock out of a folder, as long as this value lives.
class FolderLock {
 public:
  /// Waits for it, up to the limit; then, and if the folder cannot be opened, throws std::system_error. On a file
  /// system without locks there is nothing to wait for.
  FolderLock(const std::filesystem::path& folder, std::chrono::milliseconds limit);

 private:
  foundation::FileDescriptor folder_;
};

}  // namespace home
