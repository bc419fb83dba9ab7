#include <malloc.h>

#include <cstdlib>
#include <filesystem>

#include "catalogue/widgets_bundle.hpp"
#include "foundation/icu_tables.hpp"
#include "widgetkit/extension_loop.hpp"

namespace {

/// $MIRUNE_RESOURCES, else what is installed beside the folder of this program.
std::filesystem::path resourcesFolder() {
  if (const char* folder = std::getenv("MIRUNE_RESOURCES"); folder != nullptr && *folder != '\0') return folder;
  std::error_code ignored;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored);
  return program.parent_path().parent_path() / "share" / "mirune";
}

/// Every picture takes and gives back about a megabyte: what is given back to the system has to be cleared by it again
/// each time.
void keepFreedMemory() {
  constexpr int largestKept = 8 * 1024 * 1024;
  mallopt(M_MMAP_THRESHOLD, largestKept);
  mallopt(M_TRIM_THRESHOLD, largestKept);
}

}  // namespace

int main() {
  keepFreedMemory();
  foundation::openICUTables();
  const auto resources = resourcesFolder();
  return widgetkit::runBundle(mirune::Mirune_WidgetsColl(resources), {.folder = resources});
}
