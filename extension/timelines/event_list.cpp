#include "timelines/event_list.hpp"

#include <algorithm>

namespace mirune {

const DayOfEvents& EventList::emptyDay() {
  static const DayOfEvents day = std::make_shared<const std::vector<EventWidgetInner>>();
  return day;
}

EventList::EventList(std::initializer_list<EventWidgetInner> events) : EventList(std::vector(events)) {}

EventList::EventList(std::vector<EventWidgetInner> events)
    : day_(std::make_shared<const std::vector<EventWidgetInner>>(std::move(events))), size_(day_->size()) {}

EventList::EventList(DayOfEvents day, foundation::Date moment, std::size_t size)
    : day_(std::move(day)), moment_(moment), size_(size) {}

EventList::Iterator::Iterator(const EventWidgetInner* at, const EventWidgetInner* end,
                              std::optional<foundation::Date> moment)
    : at_(at), end_(end), moment_(moment) {
  skipWhatIsOver();
}

EventList::Iterator& EventList::Iterator::operator++() {
  ++at_;
  skipWhatIsOver();
  return *this;
}

EventList::Iterator EventList::Iterator::operator++(int) {
  const Iterator before = *this;
  ++*this;
  return before;
}

void EventList::Iterator::skipWhatIsOver() {
  while (moment_ && at_ != end_ && !isStillToCome(*at_, *moment_)) ++at_;
}

EventList::Iterator EventList::begin() const {
  return {day_->data(), day_->data() + day_->size(), moment_};
}

EventList::Iterator EventList::end() const {
  const EventWidgetInner* const end = day_->data() + day_->size();
  return {end, end, moment_};
}

bool operator==(const EventList& a, const EventList& b) {
  return std::ranges::equal(a, b);
}

}  // namespace mirune
