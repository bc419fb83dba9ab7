#include "catalogue/forced_theme.hpp"

#include "styling/theme.hpp"

namespace mirune {

swiftui::View ForcedTheme::body(const swiftui::EnvironmentValues& environment) const {
  return content.colorScheme(plannerTheme(*environment.platform));
}

}  // namespace mirune
