#include "foundation/calendar.hpp"

#include <cstdio>
#include <limits>

#include "foundation/calendar_system.hpp"
#include "foundation/gregorian_days.hpp"
#include "foundation/wall_clock.hpp"

namespace foundation {
namespace {

using std::chrono::seconds;

int offsetAt(absl::Time time, const TimeZone& zone) {
  return zone.rules().At(time).offset;
}

constexpr int buddhistEraOffset = 543;
constexpr int minguoEraOffset = -1911;

std::int64_t gregorianComponent(CalendarComponent component, const CivilDay& day) {
  switch (component) {
    case CalendarComponent::year:
      return day.year;
    case CalendarComponent::month:
      return day.month;
    default:
      return day.day;
  }
}

std::optional<CalendarField> fieldOf(CalendarComponent component) {
  switch (component) {
    case CalendarComponent::year:
      return CalendarField::year;
    case CalendarComponent::month:
      return CalendarField::month;
    case CalendarComponent::day:
      return CalendarField::dayOfMonth;
    default:
      return std::nullopt;
  }
}

}  // namespace

Calendar::Calendar(Locale locale, TimeZone timeZone)
    : identifier_(calendarIdentifierOf(locale)), locale_(std::move(locale)), timeZone_(timeZone) {}

Calendar Calendar::iso8601(TimeZone timeZone) {
  Calendar calendar;
  calendar.identifier_ = CalendarIdentifier::iso8601;
  calendar.timeZone_ = timeZone;
  return calendar;
}

Date Calendar::startOfDay(Date date) const {
  return firstInstant(localDay(date, timeZone_), timeZone_);
}

std::optional<Date> Calendar::dateByAdding(CalendarComponent component, std::int64_t amount, Date date) const {
  constexpr std::int64_t longestAmount = 200'000'000'000;  // days; more than all that a Date can tell apart
  if (component != CalendarComponent::day || amount > longestAmount || amount < -longestAmount) return std::nullopt;
  if (amount == 0) return date;

  const absl::CivilSecond from = civilSecond(date, timeZone_);
  const absl::CivilDay day(from);
  const absl::CivilSecond wanted = absl::CivilSecond(day + amount) + (from - absl::CivilSecond(day));
  const absl::TimeZone::TimeInfo found = timeZone_.rules().At(wanted);
  // Of a skipped time, `pre` is the time by the offset before the gap, so it lies behind the gap by the gap's length.
  absl::Time result = found.pre;
  if (found.kind == absl::TimeZone::TimeInfo::REPEATED && amount < 0) {
    const int offset = offsetAt(absl::FromUnixSeconds(secondOf(date).time_since_epoch().count()), timeZone_);
    if (offsetAt(found.post, timeZone_) == offset) result = found.post;
  }

  constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max() / 1000 - 1;
  const std::int64_t second = absl::ToUnixSeconds(result);
  if (second > limit || second < -limit) return std::nullopt;
  return Date(seconds(second)) + (date - secondOf(date));
}

std::int64_t Calendar::component(CalendarComponent component, Date date) const {
  const absl::CivilSecond civil = civilSecond(date, timeZone_);
  switch (component) {
    case CalendarComponent::hour:
      return civil.hour();
    case CalendarComponent::minute:
      return civil.minute();
    case CalendarComponent::second:
      return civil.second();
    case CalendarComponent::weekday:
      return weekdayOf(localDay(date, timeZone_));
    default:
      break;
  }
  const bool isYear = component == CalendarComponent::year;
  const std::int64_t gregorian = gregorianComponent(component, civilDay(localDay(date, timeZone_)));
  if (hasGregorianDays(identifier_) && !(isYear && identifier_ == CalendarIdentifier::japanese)) {
    if (!isYear) return gregorian;
    if (identifier_ == CalendarIdentifier::buddhist) return gregorian + buddhistEraOffset;
    if (identifier_ == CalendarIdentifier::minguo) return gregorian + minguoEraOffset;
    return gregorian;
  }
  return calendarField(identifier_, *fieldOf(component), wallClock(date, timeZone_)).value_or(gregorian);
}

std::optional<std::int64_t> Calendar::ordinalityOfDayInYear(Date date) const {
  if (!hasGregorianDays(identifier_)) {
    return calendarField(identifier_, CalendarField::dayOfYear, wallClock(date, timeZone_));
  }
  const std::int64_t day = localDay(date, timeZone_);
  return day - daysSince1970({.year = civilDay(day).year, .month = 1, .day = 1}) + 1;
}

std::string dayKey(Date date, const TimeZone& timeZone) {
  const CivilDay day = civilDay(localDay(date, timeZone));
  char text[48] = {};
  std::snprintf(text, sizeof text, "%04lld/%02d/%02d", static_cast<long long>(day.year), day.month, day.day);
  return text;
}

}  // namespace foundation
