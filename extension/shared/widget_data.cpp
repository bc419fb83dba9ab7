#include "shared/widget_data.hpp"

namespace mirune {

void decode(foundation::JSONValue& value, WidgetDataType& type) {
  const std::int64_t number = value.integer();
  if (number < 1 || number > 3) value.fail("not 1 (task), 2 (habit) or 3 (event)");
  type = static_cast<WidgetDataType>(number);
}

void decode(foundation::JSONValue& value, WidgetData& item) {
  foundation::decodeObject(value, foundation::required("type", item.type), foundation::required("id", item.id),
                           foundation::required("title", item.title), foundation::required("isOn", item.isOn),
                           foundation::required("calid", item.calid), foundation::required("starttime", item.starttime),
                           foundation::required("endtime", item.endtime), foundation::required("allday", item.allday),
                           foundation::ifPresent("colorHex", item.colorHex));
}

}  // namespace mirune
