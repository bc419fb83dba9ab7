#include <cstdlib>
#include <filesystem>

#include "catalogue/widgets_bundle.hpp"
#include "widgetkit/extension_loop.hpp"

namespace {

/// $MIRUNE_RESOURCES, else what is installed beside the folder of this program.
std::filesystem::path resourcesFolder() {
  if (const char* folder = std::getenv("MIRUNE_RESOURCES"); folder != nullptr && *folder != '\0') return folder;
  std::error_code ignored;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored);
  return program.parent_path().parent_path() / "share" / "mirune";
}

}  // namespace

int main() {
  const auto resources = resourcesFolder();
  return widgetkit::runBundle(mirune::Mirune_WidgetsColl(resources), {.folder = resources});
}
