#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <cstdlib>

#include "foundation/time_zone.hpp"
#include "host/live/folder_watch.hpp"
#include "host/live/home_screen.hpp"

// What wakes the home screen.

namespace host {

namespace asio = boost::asio;

asio::awaitable<void> HomeScreen::watchMoments() {
  while (true) {
    co_await timer_.due();
    update();
  }
}

asio::awaitable<void> HomeScreen::watchContainer() {
  if (options_.world.container.empty()) co_return;
  const std::filesystem::path container = options_.world.container;
  FolderWatch watch(executor_, {container, container / "Library" / "Preferences", container / "icons"});
  asio::steady_timer patience(executor_);
  while (true) {
    co_await watch.changed();
    auto files = ContainerFiles::of(container, files_);
    while (files.isHalfWritten()) {
      patience.expires_after(std::chrono::milliseconds(500));
      co_await patience.async_wait(asio::use_awaitable);
      files = ContainerFiles::of(container, files);
    }
    const bool hasOtherFiles = files.differsFrom(files_);
    const bool looksDifferent = files.looksDifferentFrom(files_);
    files_ = std::move(files);
    if (looksDifferent) ++look_;
    if (hasOtherFiles) {
      happened(OutsideEvent::files);
    } else if (looksDifferent) {
      update();
    }
  }
}

asio::awaitable<void> HomeScreen::watchZone() {
  FolderWatch watch(executor_, {"/etc"});
  while (true) {
    co_await watch.changed();
    std::string zone = foundation::systemTimeZoneName("");
    if (zone == options_.world.timeZone || !foundation::TimeZone::named(zone)) continue;
    options_.world.timeZone = std::move(zone);
    ++look_;
    happened(OutsideEvent::timeZone);
    changes_.change();
  }
}

void HomeScreen::letExtensionGoWhenIdle() {
  constexpr std::chrono::seconds patience(30);
  idle_.expires_after(patience);
  idle_.async_wait([this](const boost::system::error_code& error) {
    if (!error && extension_.pending() == 0) extension_.letGo();
  });
}

}  // namespace host
