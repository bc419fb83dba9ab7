#include "shared/settings.hpp"

#include "shared/app_group.hpp"

namespace mirune {

std::optional<foundation::UserDefaults> sharedSettings(const uikit::Platform& platform) {
  return foundation::UserDefaults::open(platform.files, appGroup);
}

}  // namespace mirune
