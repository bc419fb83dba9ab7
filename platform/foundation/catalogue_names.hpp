#pragma once

#include <string>
#include <vector>

#include "foundation/locale.hpp"

namespace foundation {

/// The names under which a locale's catalogue of messages may be found, best first: "pt_PT", "pt", "pt_BR". Never that
/// of another script than the locale's: zh_Hans_SG has "zh_SG", "zh", "zh_CN", but zh_HK "zh_HK", "zh_TW".
std::vector<std::string> catalogueNames(const Locale& locale);

}  // namespace foundation
