#include "host/live/broadcast.hpp"

#include <gtest/gtest.h>

#include <boost/asio/experimental/awaitable_operators.hpp>

#include "waiting.hpp"

namespace host {
namespace {

using namespace boost::asio::experimental::awaitable_operators;
using live_test::begin;
using live_test::runUntil;

TEST(Broadcast, ReachesAllWhoWait) {
  boost::asio::io_context context;
  Broadcast changes(context.get_executor());
  const auto behind = begin(context, changes.after(0));
  const auto first = begin(context, changes.after(1));
  const auto second = begin(context, changes.after(1));
  context.poll();
  EXPECT_EQ(*behind, 1U) << "who missed something learns it at once";
  EXPECT_FALSE(*first || *second);
  changes.change();
  changes.change();
  ASSERT_TRUE(runUntil(context, [&] { return *first && *second; }));
  EXPECT_EQ(*first, 3U);
  EXPECT_EQ(*second, 3U);
  const auto next = begin(context, changes.after(3));
  context.restart();
  context.poll();
  EXPECT_FALSE(*next);
  changes.change();
  ASSERT_TRUE(runUntil(context, [&] { return next->has_value(); }));
  EXPECT_EQ(*next, 4U);
}

boost::asio::awaitable<void> at(boost::asio::steady_timer& timer) {
  boost::system::error_code cancelled;
  co_await timer.async_wait(boost::asio::redirect_error(boost::asio::use_awaitable, cancelled));
}

boost::asio::awaitable<void> untilChange(Broadcast& changes) {
  co_await changes.after(1);
}

TEST(Broadcast, LetsGoOfWhoIsNotWantedAnyMore) {
  boost::asio::io_context context;
  Broadcast changes(context.get_executor());
  boost::asio::steady_timer timer(context, std::chrono::milliseconds(10));
  const auto either = begin(context, untilChange(changes) || at(timer));
  const auto other = begin(context, changes.after(1));
  ASSERT_TRUE(runUntil(context, [&] { return either->has_value(); }));
  EXPECT_EQ((*either)->index(), 1U);
  EXPECT_FALSE(*other) << "who still waits is not disturbed";
  changes.change();
  EXPECT_TRUE(runUntil(context, [&] { return other->has_value(); }));
}

}  // namespace
}  // namespace host
