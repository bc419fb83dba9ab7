#pragma once

#include <map>
#include <string>
#include <vector>

#include "shared/widget_data.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// The items of the days, by day key ("2026/11/21"), in the planner's order.
using ItemFile = std::map<std::string, std::vector<WidgetData>, std::less<>>;

/// The item file of that base name, read afresh. A file that is missing, or of which anything does not decode, is
/// empty.
ItemFile readItemFile(const uikit::Platform& platform, std::string_view name);

/// The items under a key; none where it is absent.
const std::vector<WidgetData>& itemsUnder(const ItemFile& file, std::string_view key);

}  // namespace mirune
