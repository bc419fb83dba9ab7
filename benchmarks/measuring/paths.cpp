#include "measuring/paths.hpp"

namespace measuring {
namespace {

std::filesystem::path buildFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path();
}

}  // namespace

std::filesystem::path resourcesFolder() {
  return buildFolder() / "share" / "mirune";
}

std::filesystem::path extensionProgram() {
  return buildFolder() / "libexec" / "mirune-extension";
}

}  // namespace measuring
