#include <gtest/gtest.h>

#include "schedule/fake_widgets.hpp"
#include "schedule/retry_pause.hpp"

namespace host {
namespace {

using foundation::Calendar;
using foundation::Date;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

const Date start = moment("2026-11-21T10:00:00Z");

/// A widget that can be broken and mended, and its host.
struct Breakable {
  Breakable()
      : host(
            [this](Date now, const Calendar& calendar) -> std::optional<FakeTimeline> {
              if (isBroken) return std::nullopt;
              return dailyWidget(15)(now, calendar);
            },
            calendarIn("Europe/Berlin"), start, {}) {}

  /// The seconds between one request and the next, from the given request on.
  std::vector<long> pauses(std::size_t from) const {
    std::vector<long> result;
    for (std::size_t k = from + 1; k < host.sent().size(); ++k) {
      result.push_back((host.sent()[k].at - host.sent()[k - 1].at) / seconds(1));
    }
    return result;
  }

  bool isBroken = true;
  VirtualHost host;
};

TEST(FailingRequests, PauseTwiceAsLongEachTimeUpToFifteenMinutes) {
  Breakable widget;
  widget.host.runFor(minutes(60));
  EXPECT_EQ(widget.pauses(0), (std::vector<long>{1, 2, 4, 8, 16, 32, 64, 128, 256, 512, 900, 900}));
  // Long after the count would have overflowed a shift.
  widget.host.runFor(hours(24) * 30);
  EXPECT_EQ(widget.pauses(0).back(), 900);
  EXPECT_EQ(widget.host.sent().size(), 13 + 30 * 24 * 4);
}

TEST(FailingRequests, EndWithTheFirstSuccess) {
  Breakable widget;
  widget.host.runFor(seconds(100));
  widget.isBroken = false;
  widget.host.runFor(minutes(10));
  const auto asked = widget.host.sent().size();
  EXPECT_EQ(asked, 8) << "0, 1, 3, 7, 15, 31, 63 s failed, 127 s did not";
  widget.isBroken = true;
  widget.host.happen(OutsideEvent::tap);
  widget.host.runFor(seconds(4));
  EXPECT_EQ(widget.pauses(asked), (std::vector<long>{1, 2})) << "the count begins anew";
}

TEST(FailingRequests, AreSentAtOnceForWhatHappensOutsideWithoutShorterPauses) {
  Breakable widget;
  widget.host.runFor(seconds(20));  // five have failed, the next pause is 16 s
  widget.host.happen(OutsideEvent::tap);
  widget.host.happen(OutsideEvent::files);
  widget.host.runFor(minutes(3));
  EXPECT_EQ(widget.pauses(0), (std::vector<long>{1, 2, 4, 8, 5, 0, 64}))
      << "for the tap, for the files that changed while that was on its way, and after seven failures";
}

TEST(FailingRequests, DoNotWaitForAClockThatWasPutBack) {
  Breakable widget;
  widget.host.runFor(hours(2));
  widget.host.setClock(start - hours(24 * 365));
  const auto asked = widget.host.sent().size();
  widget.host.runFor(hours(1));
  EXPECT_EQ(widget.host.sent().size(), asked + 3) << "every 15 minutes by the new clock";
}

TEST(RetryMoment, DoesNotWaitForAClockThatWasPutBack) {
  const Date planned = start + retryPause(3);
  EXPECT_EQ(retryMoment(planned, 3, start + seconds(1)), planned);
  EXPECT_EQ(retryMoment(planned, 3, start + hours(1)), planned);
  EXPECT_EQ(retryMoment(planned, 3, start - hours(24 * 365)), start - hours(24 * 365) + seconds(4));
}

}  // namespace
}  // namespace host
