#include "schedule/virtual_host.hpp"

#include <gtest/gtest.h>

#include "foundation/iso8601.hpp"
#include "schedule/next_midnight.hpp"

namespace host {

using foundation::Date;

Date moment(std::string_view text) {
  return foundation::parseMoment(text).value();
}

foundation::Calendar calendarIn(std::string_view zone) {
  return foundation::Calendar::iso8601(foundation::TimeZone::named(zone).value());
}

std::optional<std::size_t> shownBySearch(std::span<const Date> dates, Date moment) {
  std::optional<std::size_t> due;
  std::optional<std::size_t> ahead;
  for (std::size_t index = 0; index < dates.size(); ++index) {
    const Date date = dates[index];
    if (date <= moment && (!due || date >= dates[*due])) due = index;
    if (date > moment && (!ahead || date <= dates[*ahead])) ahead = index;
  }
  return due ? due : ahead;
}

VirtualHost::VirtualHost(FakeWidget widget, foundation::Calendar calendar, Date start,
                         std::chrono::milliseconds latency)
    : widget_(std::move(widget)), calendar_(std::move(calendar)), now_(start), latency_(latency) {
  decideNow();
}

void VirtualHost::expectShownAt(Date time) const {
  const auto shown = shownBySearch(dates_, time);
  ASSERT_EQ(decision_.shown.has_value(), shown.has_value());
  if (!shown) return;
  EXPECT_EQ(decision_.shown->index, *shown) << foundation::formatMoment(time);
  EXPECT_EQ(decision_.shown->isEarly, dates_[*shown] > time) << foundation::formatMoment(time);
}

void VirtualHost::decideNow() {
  state_ = clockRead(std::move(state_), now_, nextMidnight(calendar_, now_));
  decision_ = decide(state_, now_);
  if (decision_.asksNow) {
    sent_.push_back({.at = now_, .reason = decision_.nextRequest->reason});
    EXPECT_LE(decision_.nextRequest->at, now_);
    EXPECT_LE(sent_.size(), 50'000) << "it asks in circles";
    state_ = host::requestSent(std::move(state_), now_);
    requestSent_ = now_;
    answerIn_ = latency_;
    decision_ = decide(state_, now_);
    EXPECT_FALSE(decision_.nextRequest) << "while one is on its way";
  }
  expectShownAt(now_);
  EXPECT_GT(decision_.wake.value_or(Date::max()), now_);
  EXPECT_LE(decision_.wake.value_or(Date::max()), decision_.nextChange.value_or(Date::max()));
}

void VirtualHost::takeAnswer() {
  auto timeline = widget_(*requestSent_, calendar_);
  if (timeline) {
    dates_ = std::move(timeline->dates);
    state_ = answered(std::move(state_), {.dates = EntryDates(dates_),
                                          .policy = timeline->policy,
                                          .asked = *requestSent_,
                                          .midnight = nextMidnight(calendar_, *requestSent_)});
  } else {
    state_ = failed(std::move(state_), now_);
  }
  requestSent_.reset();
  decideNow();
}

void VirtualHost::passUntil(Date moment) {
  // Looks in the middle of minutes, when the answers to what was asked at full ones are there.
  const auto half = std::chrono::seconds(30);
  const auto steps = (now_.time_since_epoch() - half + step - std::chrono::milliseconds(1)) / step;
  for (Date time(steps * step + half); time < moment; time += step) {
    if (time < now_) continue;
    expectShownAt(time);
    if (look && decision_.shown) look(time, dates_[decision_.shown->index]);
    if (testing::Test::HasFailure()) break;
  }
  if (moment > now_) expectShownAt(moment - std::chrono::milliseconds(1));
  if (requestSent_) answerIn_ -= moment - now_;
  now_ = moment;
}

void VirtualHost::runUntil(Date end) {
  while (!testing::Test::HasFailure()) {
    const auto answer = requestSent_ ? std::optional(now_ + answerIn_) : std::nullopt;
    const auto wake = decision_.wake;
    const bool answerIsNext = answer && (!wake || *answer <= *wake);
    const auto next = answerIsNext ? answer : wake;
    if (!next || *next >= end) break;
    passUntil(*next);
    if (answerIsNext) {
      takeAnswer();
    } else {
      ++wakes_;
      if (decision_.nextChange == next) ++changes_;
      decideNow();
    }
  }
  passUntil(end);
}

void VirtualHost::setClock(Date now) {
  now_ = now;
  decideNow();
}

void VirtualHost::happen(OutsideEvent event) {
  state_ = happened(std::move(state_), event);
  decideNow();
}

void VirtualHost::moveTo(foundation::Calendar calendar) {
  calendar_ = std::move(calendar);
  happen(OutsideEvent::timeZone);
}

}  // namespace host
