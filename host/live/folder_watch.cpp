#include "host/live/folder_watch.hpp"

#include <sys/inotify.h>

#include <array>
#include <boost/asio/buffer.hpp>
#include <boost/asio/experimental/awaitable_operators.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <system_error>

namespace host {

namespace asio = boost::asio;
using namespace asio::experimental::awaitable_operators;

namespace {

constexpr std::chrono::milliseconds calm(200);
constexpr std::chrono::milliseconds longestBurst(2000);
constexpr std::uint32_t changes = IN_CLOSE_WRITE | IN_ATTRIB | IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO |
                                  IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

int openEvents() {
  const int descriptor = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  if (descriptor < 0) throw std::system_error(errno, std::generic_category(), "folders cannot be watched");
  return descriptor;
}

}  // namespace

FolderWatch::FolderWatch(const asio::any_io_executor& executor, std::vector<std::filesystem::path> folders)
    : folders_(std::move(folders)), events_(executor, openEvents()) {
  arm();
}

std::filesystem::path FolderWatch::watchNearest(std::filesystem::path folder) {
  // Watching a folder once more changes nothing.
  while (inotify_add_watch(events_.native_handle(), folder.c_str(), changes) < 0 && folder.has_relative_path()) {
    folder = folder.parent_path();
  }
  return folder;
}

void FolderWatch::arm() {
  for (const std::filesystem::path& folder : folders_) {
    // A folder that comes before the one above it is watched is told of by nobody.
    std::filesystem::path before;
    for (auto nearest = watchNearest(folder); nearest != before; nearest = watchNearest(folder)) before = nearest;
  }
}

asio::awaitable<void> FolderWatch::changed() {
  std::array<char, 4096> buffer = {};
  co_await events_.async_read_some(asio::buffer(buffer), asio::use_awaitable);
  const auto end = std::chrono::steady_clock::now() + longestBurst;
  asio::steady_timer timer(events_.get_executor());
  while (std::chrono::steady_clock::now() < end) {
    timer.expires_after(calm);
    const auto first = co_await (events_.async_read_some(asio::buffer(buffer), asio::use_awaitable) ||
                                 timer.async_wait(asio::use_awaitable));
    if (first.index() == 1) break;
  }
  arm();
}

}  // namespace host
