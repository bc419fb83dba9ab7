#include "lists/lockscreen_toggle.hpp"

#include "completion/task_intent.hpp"
#include "lists/checklist_toggle_style.hpp"

namespace mirune {

using namespace swiftui;

View LockscreenToggle::body(const EnvironmentValues&) const {
  return toggle({.isOn = false, .intent = TaskIntent{.id = id, .date = date}},
                swiftui::text(text).font(system(14.5)).lineLimit(1))
      .toggleStyle(LockscreenChecklistToggleStyle{.style = style});
}

}  // namespace mirune
