#include "shared/widget_data.hpp"

#include "shared/item_files.hpp"
#include "support/recorded_cases.hpp"

namespace mirune {
namespace {

nlohmann::json recorded(const ItemFile& days) {
  const auto seconds = [](foundation::Date date) { return foundation::secondOf(date).time_since_epoch().count(); };
  nlohmann::json json = nlohmann::json::object();
  for (const auto& [key, items] : days) {
    nlohmann::json& list = json[key] = nlohmann::json::array();
    for (const WidgetData& item : items) {
      list.push_back({{"type", static_cast<int>(item.type)},
                      {"id", item.id},
                      {"title", item.title},
                      {"isOn", item.isOn},
                      {"calid", item.calid},
                      {"starttime", seconds(item.starttime)},
                      {"endtime", seconds(item.endtime)},
                      {"allday", item.allday},
                      {"colorHex", item.colorHex ? nlohmann::json(*item.colorHex) : nlohmann::json()}});
    }
  }
  return json;
}

TEST(WidgetData, DecodesAsRecorded) {
  for (const auto& row : support::recordedCases("platform/items.json")) {
    const auto file = row["file"].get<std::string>();
    const auto days = foundation::decodeJSON<ItemFile>(file);
    EXPECT_EQ(days ? recorded(*days) : nlohmann::json(), row["days"]) << file << "\n"
                                                                      << (days ? "" : days.error().message());
  }
}

}  // namespace
}  // namespace mirune
