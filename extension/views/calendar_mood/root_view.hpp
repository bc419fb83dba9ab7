#pragma once

#include "foundation/date_formatter.hpp"
#include "swiftui/view.hpp"

namespace mirune {

/// The month's name over its grid.
struct RootView {
  foundation::Calendar calendar = {};
  foundation::Date date_month = {};  ///< a moment in the month
  foundation::Date today = {};       ///< marks the day that begins at exactly this moment
  foundation::DateFormatter df;      ///< writes the month's name

  swiftui::View body(const swiftui::EnvironmentValues& environment) const;
};

}  // namespace mirune
