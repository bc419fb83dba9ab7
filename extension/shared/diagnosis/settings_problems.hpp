#pragma once

#include "shared/diagnosis/container_contents.hpp"
#include "shared/diagnosis/problem_lines.hpp"

namespace mirune {

/// Settings of another type than the planner and its widgets store, and what they are taken for; a stored colour offset
/// with which a shown day cannot be drawn.
Problems settingsProblems(const ContainerContents& contents, const uikit::Platform& platform);

}  // namespace mirune
