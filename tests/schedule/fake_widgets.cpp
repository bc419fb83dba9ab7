#include "schedule/fake_widgets.hpp"

namespace host {

using foundation::Calendar;
using foundation::Date;

Date dayAfter(const Calendar& calendar, Date day, int days) {
  return calendar.startOfDay(calendar.dateByAdding(foundation::CalendarComponent::day, days, day).value());
}

FakeWidget dailyWidget(int days) {
  return [days](Date now, const Calendar& calendar) {
    FakeTimeline timeline;
    for (int k = 0; k < days; ++k) timeline.dates.push_back(dayAfter(calendar, calendar.startOfDay(now), k));
    return timeline;
  };
}

FakeWidget eventsWidget() {
  return [](Date now, const Calendar& calendar) {
    FakeTimeline timeline;
    for (int k = 0; k < 15; ++k) {
      const Date day = dayAfter(calendar, calendar.startOfDay(now), k);
      timeline.dates.push_back(day);
      for (const int minutes : {540, 600, 1290, 1380, 555, 840, 540, 720, 720, 905}) {
        timeline.dates.push_back(calendar.dateBySettingHour(minutes / 60, minutes % 60, 0, day).value());
      }
    }
    return timeline;
  };
}

FakeWidget moodWidget() {
  return [](Date now, const Calendar& calendar) {
    const auto due = calendar.startOfDay(now) + std::chrono::seconds(86400);
    return FakeTimeline{.dates = {now}, .policy = After{.date = due}};
  };
}

}  // namespace host
