#pragma once

#include "messages/replies.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// Looks at every file of the container that widgets read, always in the same order, and says what is wrong with it and
/// what follows. Nothing is changed, and nothing that a file holds stops the extension here. Lines name places and ids,
/// never titles; of many lines of one kind the first few are told and the others counted.
messages::Diagnosis diagnoseContainer(const uikit::Platform& platform);

}  // namespace mirune
