#pragma once

#include <cstdint>
#include <string>

#include "swiftui/view.hpp"

namespace mirune {

/// The picture behind the day's number: the one of the scheme's list at `image` modulo its length. A negative number
/// stops the extension.
std::string badgeImageName(std::int64_t image, uikit::ColorScheme scheme);

/// An unseen number of two digits, which makes every badge as large.
swiftui::View badgeSizer();

/// The day of the month on a wash of colour.
struct HeaderBadge {
  std::int64_t image = 0;
  foundation::Date date = {};

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
