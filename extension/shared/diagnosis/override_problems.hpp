#pragma once

#include "shared/diagnosis/container_contents.hpp"
#include "shared/diagnosis/problem_lines.hpp"

namespace mirune {

// What is wrong with the items that were ticked on widgets: marks of items that the planner does not know, and marks
// that stand in one of the two files only.

Problems overrideProblems(const ContainerContents& contents, const uikit::Platform& platform);
Problems timelineOverrideProblems(const ContainerContents& contents, const uikit::Platform& platform);

}  // namespace mirune
