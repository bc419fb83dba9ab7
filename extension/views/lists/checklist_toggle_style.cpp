#include "lists/checklist_toggle_style.hpp"

#include "lists/check_box.hpp"

namespace mirune {

swiftui::View ChecklistToggleStyle::makeBody(const swiftui::ToggleStyleConfiguration& configuration) const {
  return checkBoxRow(configuration, style);
}

swiftui::View LockscreenChecklistToggleStyle::makeBody(const swiftui::ToggleStyleConfiguration& configuration) const {
  return checkBoxRow(configuration, style);
}

}  // namespace mirune
