#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "foundation/date.hpp"
#include "foundation/locale.hpp"
#include "foundation/time_zone.hpp"

namespace foundation {

/// Calendar systems that differ in what the widgets ask. Those with the months, days and year lengths of the Gregorian
/// calendar (Buddhist, Japanese, Minguo) differ from it in the year's number only.
enum class CalendarIdentifier {
  gregorian,
  iso8601,
  buddhist,
  japanese,
  minguo,
  persian,
  islamicUmmAlQura,
  islamicCivil,
  hebrew,
  chinese,
  indian,
  coptic,
  ethiopic,
};

/// A unit of the calendar.
enum class CalendarComponent { year, month, weekday, day, hour, minute, second };

/// A stretch of the calendar with a beginning and an end.
enum class CalendarPeriod { month, weekOfYear };

/// From `start` on, up to and without `end`.
struct DateInterval {
  Date start = {};
  Date end = {};

  bool contains(Date date) const { return start <= date && date < end; }
  friend bool operator==(const DateInterval&, const DateInterval&) = default;
};

/// What dates are looked for by: a time of day and, if given, a weekday (1 for Sunday to 7).
struct MatchingComponents {
  std::optional<int> weekday = std::nullopt;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

/// Turns instants into wall clocks and back, in one locale's calendar system and one time zone.
///
/// What an operation answers around clock changes is the platform's behaviour: a time that does not exist moves on by
/// the length of the gap, of a time that exists twice the first is taken. Zone rules come from the system's tz
/// database; a foreign calendar system is asked with the wall clock as if it were GMT, so that no other copy of zone
/// rules takes part.
class Calendar {
 public:
  /// Gregorian, en_US, UTC.
  Calendar() = default;
  /// The locale's own calendar system (th_TH: Buddhist, fa_IR: Persian, ar_SA: Umm al-Qura; "@calendar=" decides
  /// first).
  Calendar(Locale locale, TimeZone timeZone);
  /// The ISO 8601 calendar of that zone.
  static Calendar iso8601(TimeZone timeZone);

  CalendarIdentifier identifier() const { return identifier_; }
  const Locale& locale() const { return locale_; }
  const TimeZone& timeZone() const { return timeZone_; }

  /// The first instant of the day: 01:00 where midnight does not exist, the first of two midnights.
  Date startOfDay(Date date) const;

  /// The date `amount` units later (earlier if negative), wall clock kept. Of a wall clock that exists twice a positive
  /// amount takes the first, a negative one that with the offset of `date`. Nothing where the result is out of range.
  /// `component` is day; the other units come when a widget needs them.
  std::optional<Date> dateByAdding(CalendarComponent component, std::int64_t amount, Date date) const;

  /// The value of a unit at that moment ("day" is the day of the month, "weekday" counts from 1 for Sunday), in this
  /// calendar system.
  std::int64_t component(CalendarComponent component, Date date) const;

  /// The place of the day in its year, counting from 1. Nothing where the calendar system has no answer.
  std::optional<std::int64_t> ordinalityOfDayInYear(Date date) const;

  /// That time of day on the day in which `of` lies, the first of two. One that a clock change skips gives the first
  /// moment after the gap where that is an hour or more; a shorter gap gives the same time on the next day. Nothing for
  /// what is no time of day (hour 24, minute 60, anything negative).
  std::optional<Date> dateBySettingHour(int hour, int minute, int second, Date of) const;

  /// The month or the calendar week in which the moment lies: from the first instant of its first day to that of the
  /// next one's. Weeks begin with the first weekday. Nothing where the calendar system has no answer.
  std::optional<DateInterval> dateInterval(CalendarPeriod period, Date date) const;

  /// The dates after a moment that match, in order, until `visit` answers false: one a day at most, of two the first.
  /// A time of day that a clock change skips gives what dateBySettingHour answers. What is no time of day matches
  /// nothing.
  void enumerateDates(Date startingAfter, const MatchingComponents& matching,
                      const std::function<bool(Date)>& visit) const;

  /// The day with which weeks begin where the locale is at home: 1 for Sunday to 7 for Saturday.
  int firstWeekday() const;

  /// The shortest names of the weekdays in the locale's language, Sunday first: "S", "M", "T", …
  std::array<std::string, 7> veryShortWeekdaySymbols() const;

 private:
  CalendarIdentifier identifier_ = CalendarIdentifier::gregorian;
  Locale locale_;
  TimeZone timeZone_;
};

/// "yyyy/MM/dd" of the day in that zone, Gregorian and in ASCII digits whatever the locale: the key of a day in the
/// planner's files.
std::string dayKey(Date date, const TimeZone& timeZone);

}  // namespace foundation
