#pragma once

#include <boost/asio/awaitable.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <cstdint>

namespace host {

/// A number that grows with every change, and those who wait for the next one.
class Broadcast {
 public:
  explicit Broadcast(const boost::asio::any_io_executor& executor) : signal_(executor) {
    signal_.expires_at(boost::asio::steady_timer::time_point::max());
  }

  std::uint64_t version() const { return version_; }

  void change() {
    ++version_;
    signal_.cancel();
  }

  /// The version, once it is another than `known`.
  boost::asio::awaitable<std::uint64_t> after(std::uint64_t known) {
    while (version_ == known) {
      boost::system::error_code cancelled;
      co_await signal_.async_wait(boost::asio::redirect_error(boost::asio::use_awaitable, cancelled));
      // Another than a change has ended the wait: whoever waits is no longer wanted.
      const auto state = co_await boost::asio::this_coro::cancellation_state;
      if (state.cancelled() != boost::asio::cancellation_type::none) break;
    }
    co_return version_;
  }

 private:
  boost::asio::steady_timer signal_;
  std::uint64_t version_ = 1;
};

}  // namespace host
