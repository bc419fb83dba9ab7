#include "lists/task_event_view.hpp"

#include "lists/event_widget_view.hpp"
#include "lists/task_widget_view.hpp"

namespace mirune {

using namespace swiftui;

View TaskEventView::body(const EnvironmentValues&) const {
  return hstack({}, {
                        EventWidgetView{.entry = entry.eventEntry, .shouldAddHeader = true},
                        TaskWidgetView{.entry = entry.taskEntry, .shouldAddHeader = false},
                    });
}

}  // namespace mirune
