#include "foundation/date_formatter.hpp"

#include <unicode/smpdtfmt.h>

#include <map>
#include <utility>

#include "foundation/fatal_error.hpp"
#include "foundation/wall_clock.hpp"

namespace foundation {

/// What ICU knows of a locale's way of writing, in a zone without rules of its own: it is told wall clocks.
class DateFormatter::Format {
 public:
  /// An empty pattern stands for the short time.
  Format(const std::string& locale, const std::string& pattern) {
    const icu::Locale icuLocale(locale.c_str());
    UErrorCode status = U_ZERO_ERROR;
    if (pattern.empty()) {
      format_.reset(icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, icuLocale));
    } else {
      format_ = std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString::fromUTF8(pattern), icuLocale, status);
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

  static std::shared_ptr<const Format> kept(const std::string& locale, const std::string& pattern);

 private:
  std::unique_ptr<icu::DateFormat> format_;
};

std::shared_ptr<const DateFormatter::Format> DateFormatter::Format::kept(const std::string& locale,
                                                                         const std::string& pattern) {
  constexpr std::size_t mostKept = 32;
  thread_local std::map<std::pair<std::string, std::string>, std::shared_ptr<const Format>> formats;
  if (formats.size() > mostKept) formats.clear();
  auto& format = formats[{locale, pattern}];
  if (!format) format = std::make_shared<const Format>(locale, pattern);
  return format;
}

DateFormatter::DateFormatter(std::shared_ptr<const Format> format, TimeZone timeZone)
    : format_(std::move(format)), timeZone_(timeZone) {}

DateFormatter::DateFormatter(const Calendar& calendar, std::string_view pattern)
    : DateFormatter(Format::kept(calendar.locale().identifier(), std::string(pattern)), calendar.timeZone()) {}

DateFormatter DateFormatter::shortTime(const Calendar& calendar) {
  return {Format::kept(calendar.locale().identifier(), ""), calendar.timeZone()};
}

std::string DateFormatter::string(Date date) const {
  return format_->string(wallClock(date, timeZone_));
}

}  // namespace foundation
