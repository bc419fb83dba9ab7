#pragma once

#include <boost/asio/awaitable.hpp>
#include <boost/asio/posix/stream_descriptor.hpp>
#include <filesystem>
#include <functional>
#include <map>
#include <vector>

namespace host {

/// Tells when something changes in folders: a file is written, replaced or removed in one of them, one of them comes
/// or goes, or who may read it changes. A folder that is not there, or not for us, is waited for in the nearest one
/// above it that is.
class FolderWatch {
 public:
  FolderWatch(const boost::asio::any_io_executor& executor, std::vector<std::filesystem::path> folders);

  /// Waits for the next change, of a whole burst of them until it has been calm for a moment, but no longer than two
  /// seconds.
  boost::asio::awaitable<void> changed();

 private:
  void arm();
  /// Watches the folder or the nearest one above it that can be watched, which is returned.
  std::filesystem::path watchNearest(std::filesystem::path folder);

  std::vector<std::filesystem::path> folders_;
  boost::asio::posix::stream_descriptor events_;
};

}  // namespace host
