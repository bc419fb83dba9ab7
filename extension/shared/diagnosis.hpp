#pragma once

#include "messages/replies.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// Looks at every file of the container that widgets read, and says what is wrong with it and what that does.
messages::Diagnosis diagnoseContainer(const uikit::Platform& platform);

}  // namespace mirune
