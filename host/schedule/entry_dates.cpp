#include "schedule/entry_dates.hpp"

#include <algorithm>
#include <string>

#include "foundation/iso8601.hpp"

namespace host {

EntryDates::EntryDates(std::span<const foundation::Date> dates) {
  entries_.reserve(dates.size());
  for (std::size_t index = dates.size(); index > 0; --index) {
    entries_.push_back({.date = dates[index - 1], .index = index - 1});
  }
  // The last of equal dates comes first now, and so is the one that stays.
  std::ranges::stable_sort(entries_, {}, &Entry::date);
  const auto superfluous = std::ranges::unique(entries_, {}, &Entry::date);
  entries_.erase(superfluous.begin(), superfluous.end());
}

std::optional<EntryDates> EntryDates::of(const messages::Timeline& timeline) {
  std::vector<foundation::Date> dates;
  dates.reserve(timeline.entries.size());
  for (const auto& entry : timeline.entries) {
    const auto text = entry.is_object() ? entry.value("date", foundation::JSON()) : foundation::JSON();
    const auto date = text.is_string() ? foundation::parseMoment(text.get<std::string>()) : std::nullopt;
    if (!date) return std::nullopt;
    dates.push_back(*date);
  }
  return EntryDates(dates);
}

std::optional<ShownEntry> EntryDates::shown(foundation::Date moment) const {
  if (entries_.empty()) return std::nullopt;
  const auto next = firstAfter(moment);
  const bool isEarly = next == entries_.begin();
  return ShownEntry{.index = (isEarly ? next : next - 1)->index, .isEarly = isEarly};
}

std::optional<foundation::Date> EntryDates::next(foundation::Date moment) const {
  const auto next = firstAfter(moment);
  return next != entries_.end() ? std::optional(next->date) : std::nullopt;
}

std::optional<foundation::Date> EntryDates::last() const {
  return !entries_.empty() ? std::optional(entries_.back().date) : std::nullopt;
}

std::vector<EntryDates::Entry>::const_iterator EntryDates::firstAfter(foundation::Date moment) const {
  return std::ranges::upper_bound(entries_, moment, {}, &Entry::date);
}

}  // namespace host
