#pragma once

#include "foundation/calendar.hpp"

namespace mirune {

/// The date that lies so many calendar days after the start of today; a day that cannot be formed stops the extension.
/// Not moved to midnight again: after a day that starts at 01:00 it stays at 01:00.
foundation::Date dayAfter(const foundation::Calendar& calendar, foundation::Date startOfToday, int days);

/// Midnight of the first day of the month.
foundation::Date monthStart(const foundation::Calendar& calendar, foundation::Date date);

}  // namespace mirune
