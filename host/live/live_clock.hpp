#pragma once

#include <chrono>
#include <optional>

#include "foundation/date.hpp"

namespace host {

/// The clock of a live home screen: the machine's, or one that starts at a given moment and may run faster, for trying
/// out a day in a minute.
class LiveClock {
 public:
  /// The machine's clock.
  LiveClock() = default;
  /// Begins at `start` now; `speed` seconds pass in each.
  LiveClock(foundation::Date start, double speed);

  /// Whether the moments are those of the machine: only then do its jumps matter.
  bool isReal() const { return !start_; }
  double speed() const { return speed_; }

  foundation::Date now() const;
  /// How long it takes until then; nothing is negative.
  std::chrono::nanoseconds until(foundation::Date moment) const;

 private:
  std::optional<foundation::Date> start_ = std::nullopt;
  std::chrono::steady_clock::time_point began_ = {};
  double speed_ = 1;
};

}  // namespace host
