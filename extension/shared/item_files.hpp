#pragma once

#include <map>
#include <string>
#include <vector>

#include "shared/shown_days.hpp"
#include "shared/widget_data.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// The items of the days, by day key ("2026/11/21"), in the planner's order.
using ItemFile = std::map<std::string, std::vector<WidgetData>, std::less<>>;

/// The item file of that base name, read afresh, without the items under other keys than those. A file that is missing,
/// or of which anything does not decode, under whatever key, is empty.
ItemFile readItemFile(const uikit::Platform& platform, std::string_view name, const DayKeys& keys);

/// The items under a key; none where it is absent.
const std::vector<WidgetData>& itemsUnder(const ItemFile& file, std::string_view key);

}  // namespace mirune
