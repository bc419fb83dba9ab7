#pragma once

#include <variant>
#include <vector>

#include "foundation/date.hpp"
#include "foundation/json.hpp"

namespace widgetkit {

/// When the host asks for the next timeline: never before the moment that the policy names.
class TimelineReloadPolicy {
 public:
  /// Once the last entry's date has passed.
  static TimelineReloadPolicy atEnd() { return TimelineReloadPolicy(AtEnd{}); }
  static TimelineReloadPolicy after(foundation::Date date) { return TimelineReloadPolicy(After{.date = date}); }
  /// Only when it has another reason to.
  static TimelineReloadPolicy never() { return TimelineReloadPolicy(Never{}); }

  /// "atEnd", {"after": MOMENT} or "never".
  foundation::JSON json() const;

  friend bool operator==(const TimelineReloadPolicy&, const TimelineReloadPolicy&) = default;

 private:
  struct AtEnd {
    friend bool operator==(const AtEnd&, const AtEnd&) = default;
  };
  struct After {
    foundation::Date date = {};
    friend bool operator==(const After&, const After&) = default;
  };
  struct Never {
    friend bool operator==(const Never&, const Never&) = default;
  };
  using Kind = std::variant<AtEnd, After, Never>;

  explicit TimelineReloadPolicy(Kind kind) : kind_(kind) {}

  Kind kind_;
};

/// What a widget shows over time. An entry is shown from its date on.
template <class Entry>
struct Timeline {
  std::vector<Entry> entries = {};
  TimelineReloadPolicy policy = TimelineReloadPolicy::atEnd();
};

}  // namespace widgetkit
