#include "shared/item_files.hpp"

#include "shared/group_data_manager.hpp"

namespace mirune {

ItemFile readItemFile(const uikit::Platform& platform, std::string_view name) {
  const auto bytes = GroupDataManager::read(platform, name);
  if (!bytes) return {};
  return foundation::decodeJSON<ItemFile>(*bytes).value_or(ItemFile{});
}

const std::vector<WidgetData>& itemsUnder(const ItemFile& file, std::string_view key) {
  static const std::vector<WidgetData> none;
  const auto found = file.find(key);
  return found != file.end() ? found->second : none;
}

}  // namespace mirune
