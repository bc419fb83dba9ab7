#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "foundation/date.hpp"
#include "messages/replies.hpp"

namespace host {

/// The entry that a widget shows.
struct ShownEntry {
  std::size_t index = 0;  ///< its place in the timeline
  bool isEarly = false;   ///< its date is still to come; drawn again once it has
  friend bool operator==(const ShownEntry&, const ShownEntry&) = default;
};

/// The dates of a timeline's entries, sorted once, so that each question takes logarithmic time.
class EntryDates {
 public:
  EntryDates() = default;
  /// In the timeline's order, whatever that is.
  explicit EntryDates(std::span<const foundation::Date> dates);
  /// Nothing where an entry has no date.
  static std::optional<EntryDates> of(const messages::Timeline& timeline);

  /// The entry with the greatest date that is not after `moment`. Where all lie ahead, the earliest is shown before its
  /// time. Of entries with equal dates the last wins. Nothing for an empty timeline.
  std::optional<ShownEntry> shown(foundation::Date moment) const;

  /// The first date after `moment`.
  std::optional<foundation::Date> next(foundation::Date moment) const;

  /// The greatest date.
  std::optional<foundation::Date> last() const;

 private:
  struct Entry {
    foundation::Date date = {};
    std::size_t index = 0;
  };

  std::vector<Entry>::const_iterator firstAfter(foundation::Date moment) const;

  std::vector<Entry> entries_ = {};  ///< rising, each date once
};

}  // namespace host
