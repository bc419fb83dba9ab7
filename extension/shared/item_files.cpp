#include "shared/item_files.hpp"

#include "shared/group_data_manager.hpp"

namespace mirune {
namespace {

/// Years of items are mostly of other days than those that are shown. They have to decode, but are not kept.
struct ItemsUnderKeys {
  const DayKeys& wanted;
  ItemFile file = {};
  WidgetData dropped = {};  ///< takes one of the others after the other
};

void decode(foundation::JSONValue& value, ItemsUnderKeys& items) {
  value.forEachMember([&](std::string_view key, foundation::JSONValue& list) {
    const bool isKept = items.wanted.contains(key) && !items.file.contains(key);
    if (isKept) return decode(list, items.file[std::string(key)]);
    list.forEachElement([&](foundation::JSONValue& item) { decode(item, items.dropped); });
  });
}

}  // namespace

ItemFile readItemFile(const uikit::Platform& platform, std::string_view name, const DayKeys& keys) {
  auto bytes = GroupDataManager::read(platform, name);
  if (!bytes) return {};
  ItemsUnderKeys items{.wanted = keys};
  if (!foundation::decodeJSON(std::move(*bytes), items)) return {};
  return std::move(items.file);
}

const std::vector<WidgetData>& itemsUnder(const ItemFile& file, std::string_view key) {
  static const std::vector<WidgetData> none;
  const auto found = file.find(key);
  return found != file.end() ? found->second : none;
}

}  // namespace mirune
