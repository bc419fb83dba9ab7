#pragma once

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/date.hpp"
#include "foundation/uuid.hpp"
#include "uikit/color.hpp"

namespace mirune {

/// One event.
struct EventWidgetInner {
  foundation::UUID id = {};
  std::string title = {};
  std::string calid = {};
  uikit::Color color = uikit::SystemColor::label;
  std::string time = {};  ///< "9:00 - 10:00"
  bool allday = false;
  std::optional<foundation::Date> starttime = std::nullopt;
  std::optional<foundation::Date> endtime = std::nullopt;
  friend bool operator==(const EventWidgetInner&, const EventWidgetInner&) = default;
};

/// The events of a day, made once and shared by the day's entries.
using DayOfEvents = std::shared_ptr<const std::vector<EventWidgetInner>>;

/// Whether an event is still to be shown at a moment of its day: one that ends later, and an all-day one always. One
/// without an end is never over.
inline bool isStillToCome(const EventWidgetInner& event, foundation::Date moment) {
  return event.allday || !event.endtime || *event.endtime > moment;
}

/// The events of an entry: those of a day that are still to come at a moment. A value like a vector of them, but it
/// holds none of its own: a day of 1000 events has up to 1440 entries, and half a million copies would not do.
class EventList {
 public:
  EventList() = default;
  EventList(std::initializer_list<EventWidgetInner> events);
  explicit EventList(std::vector<EventWidgetInner> events);
  /// `size` is how many of the day's events are still to come.
  EventList(DayOfEvents day, foundation::Date moment, std::size_t size);

  class Iterator {
   public:
    using value_type = EventWidgetInner;
    using difference_type = std::ptrdiff_t;
    Iterator() = default;
    Iterator(const EventWidgetInner* at, const EventWidgetInner* end, std::optional<foundation::Date> moment);
    const EventWidgetInner& operator*() const { return *at_; }
    const EventWidgetInner* operator->() const { return at_; }
    Iterator& operator++();
    Iterator operator++(int);
    friend bool operator==(const Iterator& a, const Iterator& b) { return a.at_ == b.at_; }

   private:
    void skipWhatIsOver();

    const EventWidgetInner* at_ = nullptr;
    const EventWidgetInner* end_ = nullptr;
    std::optional<foundation::Date> moment_ = std::nullopt;
  };

  Iterator begin() const;
  Iterator end() const;
  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }

  friend bool operator==(const EventList& a, const EventList& b);

 private:
  static const DayOfEvents& emptyDay();

  DayOfEvents day_ = emptyDay();
  std::optional<foundation::Date> moment_ = std::nullopt;  ///< absent: all of them
  std::size_t size_ = 0;
};

static_assert(std::forward_iterator<EventList::Iterator>);

}  // namespace mirune
