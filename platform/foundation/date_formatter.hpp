#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "foundation/calendar.hpp"

namespace foundation {

/// Writes moments in a locale's language, digits and calendar system, as the clocks of a zone show them. Texts are
/// those of the Unicode locale data; between time and day period they carry U+202F or U+00A0 where that does.
///
/// Making one is cheap after the first of a locale and form: what the locale says is kept for the process.
class DateFormatter {
 public:
  /// By a pattern of the Unicode locale data: "LLLL" is the month's name standing alone, "LLLL yyyy" that and the year,
  /// "cccc" the weekday's.
  DateFormatter(const Calendar& calendar, std::string_view pattern);

  /// The time of day in the short form of the locale: "9:05 AM", "21:10".
  static DateFormatter shortTime(const Calendar& calendar);

  /// Weekday, month and day in full, in the locale's order: "Saturday, November 21", "Samstag, 21. November".
  static DateFormatter weekdayAndDay(const Calendar& calendar);

  std::string string(Date date) const;

 private:
  class Format;
  DateFormatter(std::shared_ptr<const Format> format, TimeZone timeZone);

  std::shared_ptr<const Format> format_;
  TimeZone timeZone_;
};

}  // namespace foundation
