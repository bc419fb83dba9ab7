#include "foundation/date_formatter.hpp"

#include <unicode/smpdtfmt.h>

#include <map>
#include <tuple>
#include <utility>

#include "foundation/fatal_error.hpp"
#include "foundation/wall_clock.hpp"

namespace foundation {

/// What ICU knows of a locale's way of writing, in a zone without rules of its own: it is told wall clocks.
class DateFormatter::Format {
 public:
  /// How the pattern is meant: as it stands, or as fields that the locale puts in order.
  enum class Form { shortTime, pattern, skeleton };

  Format(const std::string& locale, Form form, const std::string& pattern) {
    const icu::Locale icuLocale(locale.c_str());
    const auto fields = icu::UnicodeString::fromUTF8(pattern);
    UErrorCode status = U_ZERO_ERROR;
    switch (form) {
      case Form::shortTime:
        format_.reset(icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, icuLocale));
        break;
      case Form::pattern:
        format_ = std::make_unique<icu::SimpleDateFormat>(fields, icuLocale, status);
        break;
      case Form::skeleton:
        format_.reset(icu::DateFormat::createInstanceForSkeleton(fields, icuLocale, status));
        break;
    }
    if (format_ == nullptr || U_FAILURE(status)) fatalError("the locale data has no dates for " + locale);
    format_->setTimeZone(*icu::TimeZone::getGMT());
  }

  std::string string(std::chrono::sys_seconds wallClock) const {
    icu::UnicodeString text;
    format_->format(static_cast<UDate>(wallClock.time_since_epoch().count()) * 1000, text);
    std::string bytes;
    text.toUTF8String(bytes);
    return bytes;
  }

  static std::shared_ptr<const Format> kept(const Calendar& calendar, Form form, std::string_view pattern);

 private:
  std::unique_ptr<icu::DateFormat> format_;
};

std::shared_ptr<const DateFormatter::Format> DateFormatter::Format::kept(const Calendar& calendar, Form form,
                                                                         std::string_view pattern) {
  constexpr std::size_t mostKept = 32;
  thread_local std::map<std::tuple<std::string, Form, std::string>, std::shared_ptr<const Format>> formats;
  if (formats.size() > mostKept) formats.clear();
  const std::string& locale = calendar.locale().identifier();
  auto& format = formats[{locale, form, std::string(pattern)}];
  if (!format) format = std::make_shared<const Format>(locale, form, std::string(pattern));
  return format;
}

DateFormatter::DateFormatter(std::shared_ptr<const Format> format, TimeZone timeZone)
    : format_(std::move(format)), timeZone_(timeZone) {}

DateFormatter::DateFormatter(const Calendar& calendar, std::string_view pattern)
    : DateFormatter(Format::kept(calendar, Format::Form::pattern, pattern), calendar.timeZone()) {}

DateFormatter DateFormatter::shortTime(const Calendar& calendar) {
  return {Format::kept(calendar, Format::Form::shortTime, ""), calendar.timeZone()};
}

DateFormatter DateFormatter::weekdayAndDay(const Calendar& calendar) {
  return {Format::kept(calendar, Format::Form::skeleton, "EEEEMMMMd"), calendar.timeZone()};
}

std::string DateFormatter::string(Date date) const {
  return format_->string(wallClock(date, timeZone_));
}

}  // namespace foundation
