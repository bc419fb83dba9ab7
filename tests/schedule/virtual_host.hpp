#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "foundation/calendar.hpp"
#include "schedule/decision.hpp"

namespace host {

foundation::Date moment(std::string_view text);
foundation::Calendar calendarIn(std::string_view zone);

/// The index of the entry to show, found in the plainest way.
std::optional<std::size_t> shownBySearch(std::span<const foundation::Date> dates, foundation::Date moment);

/// What a pretended widget answers.
struct FakeTimeline {
  std::vector<foundation::Date> dates = {};
  ReloadPolicy policy = AtEnd{};
};

/// Answers a request, or fails.
using FakeWidget =
    std::function<std::optional<FakeTimeline>(foundation::Date now, const foundation::Calendar& calendar)>;

/// A request that was sent.
struct Sent {
  foundation::Date at = {};
  RequestReason reason = RequestReason::first;
  friend bool operator==(const Sent&, const Sent&) = default;
};

/// One widget and a host that does nothing by itself but wake when the scheduler told it to, in a time that passes as
/// fast as it is looked at. Checks on its way that it never wakes in vain or in circles, and that what it shows is what
/// a search through the entries finds.
class VirtualHost {
 public:
  /// `latency`: from a request to its answer.
  VirtualHost(FakeWidget widget, foundation::Calendar calendar, foundation::Date start,
              std::chrono::milliseconds latency = std::chrono::seconds(2));

  /// Lets time pass. `look`, where given, is called every `step` with the date of what is shown.
  void runUntil(foundation::Date end);
  void runFor(std::chrono::milliseconds time) { runUntil(now_ + time); }

  /// The clock is put, or the machine wakes from sleep; the host is told so.
  void setClock(foundation::Date now);
  void happen(OutsideEvent event);
  void moveTo(foundation::Calendar calendar);

  foundation::Date now() const { return now_; }
  const foundation::Calendar& calendar() const { return calendar_; }
  const std::vector<Sent>& sent() const { return sent_; }
  const Decision& decision() const { return decision_; }
  int wakes() const { return wakes_; }
  int changes() const { return changes_; }

  std::function<void(foundation::Date now, foundation::Date shown)> look = {};
  std::chrono::milliseconds step = std::chrono::minutes(1);

 private:
  void expectShownAt(foundation::Date time) const;
  void decideNow();
  void takeAnswer();
  void passUntil(foundation::Date moment);

  FakeWidget widget_;
  foundation::Calendar calendar_;
  foundation::Date now_;
  std::chrono::milliseconds latency_;
  TimelineState state_ = {};
  Decision decision_ = {};
  std::vector<foundation::Date> dates_ = {};  ///< of the last answer, in its order
  std::optional<foundation::Date> requestSent_ = std::nullopt;
  std::chrono::milliseconds answerIn_ = {};
  std::vector<Sent> sent_ = {};
  int wakes_ = 0;
  int changes_ = 0;  ///< wakes at which an entry's date came
};

}  // namespace host
