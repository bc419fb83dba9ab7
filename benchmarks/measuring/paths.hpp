#pragma once

#include <filesystem>

namespace measuring {

/// What the build has put beside the folder of this program: what the extension reads, and the extension itself.
std::filesystem::path resourcesFolder();
std::filesystem::path extensionProgram();

}  // namespace measuring
