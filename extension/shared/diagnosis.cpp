#include "shared/diagnosis.hpp"

namespace mirune {

messages::Diagnosis diagnoseContainer(const uikit::Platform& platform) {
  return {.hasContainer = platform.files.containerURL().has_value()};
}

}  // namespace mirune
