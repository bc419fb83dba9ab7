#include "lists/event_widget_view_wrapper.hpp"

#include "calendar_mood/calendar_month_view.hpp"
#include "lists/event_lock_screen.hpp"
#include "lists/event_widget_view.hpp"
#include "styling/backgrounds.hpp"
#include "styling/theme.hpp"
#include "timelines/calendar_entries.hpp"

namespace mirune {

using namespace swiftui;

namespace {

/// The month beside the list, half the width each.
View monthAndList(const EventEntry& entry, const foundation::Calendar& calendar) {
  const CalendarEntry month = calendarEntry(calendar, calendar.startOfDay(entry.date));
  const auto half = [](const View& content) { return content.frame({.maxWidth = infinity}); };
  return hstack({.spacing = 0}, {half(CalendarMonthView{.entry = month}), half(EventWidgetView{.entry = entry})});
}

}  // namespace

View EventWidgetViewWrapper::body(const EnvironmentValues& environment) const {
  switch (environment.widgetFamily) {
    case WidgetFamily::accessoryRectangular:
      return ClearBackgroundModifier{.content = EventRectangularView{.entry = entry}};
    case WidgetFamily::accessoryInline:
      return ClearBackgroundModifier{.content = EventInlineView{.entry = entry}};
    default:
      break;
  }
  const uikit::Platform& platform = *environment.platform;
  const View content = environment.widgetFamily == WidgetFamily::systemMedium ? monthAndList(entry, platform.calendar)
                                                                              : View(EventWidgetView{.entry = entry});
  const View themed = content.colorScheme(plannerTheme(platform));
  if (isAccessory(environment.widgetFamily)) return ClearBackgroundModifier{.content = themed};
  return AddBackgroundModifier{.content = themed};
}

}  // namespace mirune
