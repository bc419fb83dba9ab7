#include "lists/test_toggle.hpp"

#include "completion/task_intent.hpp"
#include "lists/checklist_toggle_style.hpp"

namespace mirune {

using namespace swiftui;

View TestToggle::body(const EnvironmentValues&) const {
  return toggle({.isOn = false, .intent = TaskIntent{.id = id, .date = date}},
                swiftui::text(text).font(system(14, FontWeight::light)).lineLimit(1).padding(2))
      .toggleStyle(ChecklistToggleStyle{.style = style});
}

}  // namespace mirune
