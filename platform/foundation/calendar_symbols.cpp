#include <unicode/calendar.h>
#include <unicode/dtfmtsym.h>

#include <memory>
#include <utility>

#include "foundation/calendar.hpp"
#include "foundation/fatal_error.hpp"

namespace foundation {
namespace {

void check(UErrorCode status, const Locale& locale) {
  if (U_FAILURE(status)) fatalError("the locale data has no calendar for " + locale.identifier());
}

int firstWeekdayOf(const Locale& locale) {
  // The month grid asks for every one of its rows, and ICU builds a whole calendar to answer.
  thread_local std::pair<std::string, int> last;
  if (last.first != locale.identifier()) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(*icu::TimeZone::getGMT(), icu::Locale(locale.identifier().c_str()), status));
    check(status, locale);
    last = {locale.identifier(), calendar->getFirstDayOfWeek(status)};
    check(status, locale);
  }
  return last.second;
}

}  // namespace

int Calendar::firstWeekday() const {
  constexpr int monday = 2;
  return identifier_ == CalendarIdentifier::iso8601 ? monday : firstWeekdayOf(locale_);
}

std::array<std::string, 7> Calendar::veryShortWeekdaySymbols() const {
  UErrorCode status = U_ZERO_ERROR;
  const icu::DateFormatSymbols symbols(icu::Locale(locale_.identifier().c_str()), status);
  check(status, locale_);
  std::int32_t count = 0;
  const icu::UnicodeString* names =
      symbols.getWeekdays(count, icu::DateFormatSymbols::FORMAT, icu::DateFormatSymbols::NARROW);
  std::array<std::string, 7> result;
  // ICU's list begins with an empty name, for its weekdays count from 1.
  for (std::int32_t i = 1; i < count && i <= 7; ++i) {
    // NOLINTNEXTLINE(bugprone-pointer-arithmetic-on-polymorphic-object): ICU's array is one of this very type
    names[i].toUTF8String(result[static_cast<std::size_t>(i) - 1]);
  }
  return result;
}

}  // namespace foundation
