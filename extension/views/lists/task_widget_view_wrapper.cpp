#include "lists/task_widget_view_wrapper.hpp"

#include "lists/task_widget_view.hpp"
#include "styling/backgrounds.hpp"
#include "styling/theme.hpp"
#include "widgetkit/static_configuration.hpp"

namespace mirune {

using namespace swiftui;

View TaskWidgetViewWrapper::body(const EnvironmentValues& environment) const {
  if (isAccessory(environment.widgetFamily)) {
    throw widgetkit::DrawingError(entry.name + ": drawing for the lock screen is not there yet");
  }
  return AddBackgroundModifier{
      .content = View(TaskWidgetView{.entry = entry}).colorScheme(plannerTheme(*environment.platform))};
}

}  // namespace mirune
