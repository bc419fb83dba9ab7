#include <gtest/gtest.h>

#include "host/live/live_clock.hpp"
#include "host/live/moment_timer.hpp"
#include "waiting.hpp"

namespace host {
namespace {

using namespace std::chrono_literals;
using foundation::Date;
using live_test::begin;
using live_test::runUntil;
using Steady = std::chrono::steady_clock;

constexpr Date start = std::chrono::sys_days(std::chrono::year(2026) / 11 / 21) + 8h;

TEST(LiveClock, RunsAtItsSpeed) {
  for (const double speed : {0.5, 1.0, 3600.0}) {
    const auto before = Steady::now();
    const LiveClock clock(start, speed);
    const auto made = Steady::now();
    Date now = clock.now();
    while (now - start < std::chrono::milliseconds(static_cast<int>(20 * speed))) now = clock.now();
    const auto after = Steady::now();
    const double passed = static_cast<double>((now - start).count());
    const std::chrono::duration<double, std::milli> real = after - before;
    EXPECT_LE(passed, real.count() * speed) << speed;
    EXPECT_GE(after - made, 19ms) << speed;
    EXPECT_FALSE(clock.isReal());
  }
}

TEST(LiveClock, TellsHowLongItTakes) {
  const LiveClock fast(start, 3600);
  const auto wait = fast.until(start + 10h);
  EXPECT_LE(wait, 10s);
  EXPECT_GT(wait, 5s);
  EXPECT_EQ(fast.until(start - 1h), 0ns);
  EXPECT_GE(LiveClock(start, 0.001).until(Date::max() - 1s), 24h) << "far away stays far away";
}

TEST(MomentTimer, IsSetWhileSomeoneWaits) {
  for (const bool isReal : {false, true}) {
    boost::asio::io_context context;
    const LiveClock clock = isReal ? LiveClock() : LiveClock(start, 3600);
    MomentTimer timer(context.get_executor(), clock);
    const auto due = begin(context, timer.due());
    context.poll();
    EXPECT_FALSE(*due) << "nothing is set";
    timer.set(clock.now() + 24h * 100);
    EXPECT_FALSE(runUntil(context, [&] { return *due; }, 50ms)) << isReal;
    timer.set(clock.now() + 24h * 50);
    EXPECT_FALSE(runUntil(context, [&] { return *due; }, 50ms)) << isReal;
    const Date moment = clock.now() + (isReal ? 50ms : std::chrono::milliseconds(3min));
    timer.set(moment);
    EXPECT_TRUE(runUntil(context, [&] { return *due; })) << "earlier, " << isReal;
    EXPECT_GE(clock.now(), moment) << isReal;
    timer.set(moment - 1h);
    const auto past = begin(context, timer.due());
    EXPECT_TRUE(runUntil(context, [&] { return *past; })) << "a moment that has passed, " << isReal;

    timer.set(clock.now());
    timer.set(std::nullopt);
    const auto never = begin(context, timer.due());
    EXPECT_FALSE(runUntil(context, [&] { return *never; }, 50ms)) << "taken back, " << isReal;
  }
}

}  // namespace
}  // namespace host
