#pragma once

#include <boost/asio/awaitable.hpp>
#include <boost/asio/posix/stream_descriptor.hpp>
#include <boost/asio/steady_timer.hpp>

#include "host/live/live_clock.hpp"

namespace host {

/// Waits for a moment of the clock, and for nothing else: in between the machine may sleep, and the process does.
class MomentTimer {
 public:
  MomentTimer(const boost::asio::any_io_executor& executor, LiveClock clock);

  /// Sets the moment to wait for; none waits without end. Also while someone waits.
  void set(std::optional<foundation::Date> moment);

  /// Returns when the moment has come, and when the machine's clock was set to another time.
  boost::asio::awaitable<void> due();

 private:
  LiveClock clock_;
  boost::asio::posix::stream_descriptor realTime_;
  boost::asio::steady_timer virtualTime_;
};

}  // namespace host
