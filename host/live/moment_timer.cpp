#include "host/live/moment_timer.hpp"

#include <sys/timerfd.h>

#include <algorithm>
#include <array>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <system_error>

namespace host {

namespace asio = boost::asio;
using foundation::Date;

namespace {

int openTimer() {
  const int descriptor = timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC);
  if (descriptor < 0) throw std::system_error(errno, std::generic_category(), "no timer can be had");
  return descriptor;
}

}  // namespace

MomentTimer::MomentTimer(const asio::any_io_executor& executor, LiveClock clock)
    : clock_(clock), realTime_(executor, openTimer()), virtualTime_(executor) {
  set(std::nullopt);
}

void MomentTimer::set(std::optional<Date> moment) {
  // Far away rather than never: a timer that is set notices when the clock is.
  const Date latest = clock_.now() + std::chrono::days(365);
  const Date due = std::min(moment.value_or(latest), latest);
  if (!clock_.isReal()) {
    virtualTime_.expires_after(clock_.until(due));
    return;
  }
  const auto since1970 = std::max(due.time_since_epoch(), Date::duration(1));
  const auto seconds = std::chrono::floor<std::chrono::seconds>(since1970);
  itimerspec when = {};
  when.it_value.tv_sec = seconds.count();
  when.it_value.tv_nsec = std::chrono::nanoseconds(since1970 - seconds).count();
  timerfd_settime(realTime_.native_handle(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &when, nullptr);
}

asio::awaitable<void> MomentTimer::due() {
  boost::system::error_code error;
  if (!clock_.isReal()) {
    // Setting another moment ends the wait early; it then begins anew.
    do {
      error = {};
      co_await virtualTime_.async_wait(asio::redirect_error(asio::use_awaitable, error));
    } while (error == asio::error::operation_aborted && virtualTime_.expiry() > std::chrono::steady_clock::now());
    co_return;
  }
  // A read fails where the clock was set: that is a reason to look at it, too.
  std::array<char, sizeof(std::uint64_t)> expirations = {};
  co_await realTime_.async_read_some(asio::buffer(expirations), asio::redirect_error(asio::use_awaitable, error));
}

}  // namespace host
