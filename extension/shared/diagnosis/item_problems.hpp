#pragma once

#include "shared/diagnosis/container_contents.hpp"
#include "shared/diagnosis/problem_lines.hpp"

namespace mirune {

// What is wrong with the items of a file that decodes. A list makes a UUID of the id of each open item that it shows,
// and stops the extension where it is none; the ids of events are never looked at.

Problems taskProblems(const ContainerContents& contents, const uikit::Platform& platform);
Problems pendingTaskProblems(const ContainerContents& contents, const uikit::Platform& platform);
Problems habitProblems(const ContainerContents& contents, const uikit::Platform& platform);
Problems eventProblems(const ContainerContents& contents, const uikit::Platform& platform);
Problems moodProblems(const ContainerContents& contents, const uikit::Platform& platform);

}  // namespace mirune
