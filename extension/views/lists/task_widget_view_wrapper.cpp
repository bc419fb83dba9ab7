#include "lists/task_widget_view_wrapper.hpp"

#include "lists/task_lock_screen.hpp"
#include "lists/task_widget_view.hpp"
#include "styling/backgrounds.hpp"
#include "styling/theme.hpp"

namespace mirune {

using namespace swiftui;

View TaskWidgetViewWrapper::body(const EnvironmentValues& environment) const {
  const WidgetFamily family = environment.widgetFamily;
  if (family == WidgetFamily::accessoryCircular) {
    return ClearBackgroundModifier{.content = TaskCircularView{.entry = entry}};
  }
  if (family == WidgetFamily::accessoryRectangular) {
    return ClearBackgroundModifier{.content = TaskRectangularView{.entry = entry}};
  }
  const View list = View(TaskWidgetView{.entry = entry}).colorScheme(plannerTheme(*environment.platform));
  if (isAccessory(family)) return ClearBackgroundModifier{.content = list};
  return AddBackgroundModifier{.content = list};
}

}  // namespace mirune
