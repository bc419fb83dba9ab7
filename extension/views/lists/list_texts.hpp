#pragma once

#include <string>

#include "foundation/words.hpp"
#include "swiftui/view.hpp"

namespace mirune {

/// The title of a list: its name in capitals.
swiftui::View listTitle(const std::string& name);

/// "+2 more"
std::string moreText(const foundation::Words& words, long long count);

/// The same, small and on one line.
swiftui::View moreFooter(const foundation::Words& words, long long count);

}  // namespace mirune
