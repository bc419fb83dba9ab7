#include "shared/group_data_manager.hpp"

namespace mirune {

std::optional<std::string> GroupDataManager::read(const uikit::Platform& platform, std::string_view name) {
  const auto container = platform.files.containerURL();
  if (!container) {
    platform.log("groupURLnilllll");
    return std::nullopt;
  }
  auto bytes = foundation::readFile(*container / (std::string(name) + ".json"));
  if (!bytes) {
    platform.log(foundation::fileURL(*container, true) + " groupURLnilllllreaddd");
    return std::nullopt;
  }
  return std::move(*bytes);
}

}  // namespace mirune
