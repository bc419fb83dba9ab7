#include "foundation/calendar_system.hpp"

#include <unicode/ucal.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace foundation {
namespace {

struct Named {
  std::string_view name;
  CalendarIdentifier identifier;
};

template <std::size_t count>
std::optional<CalendarIdentifier> find(const std::array<Named, count>& table, std::string_view name) {
  const auto* const found =
      std::find_if(table.begin(), table.end(), [&](const Named& row) { return row.name == name; });
  if (found == table.end()) return std::nullopt;
  return found->identifier;
}

constexpr auto keywords = std::to_array<Named>({
    {"gregorian", CalendarIdentifier::gregorian},
    {"gregory", CalendarIdentifier::gregorian},
    {"iso8601", CalendarIdentifier::iso8601},
    {"buddhist", CalendarIdentifier::buddhist},
    {"japanese", CalendarIdentifier::japanese},
    {"roc", CalendarIdentifier::minguo},
    {"persian", CalendarIdentifier::persian},
    {"islamic-umalqura", CalendarIdentifier::islamicUmmAlQura},
    {"islamic-civil", CalendarIdentifier::islamicCivil},
    {"islamicc", CalendarIdentifier::islamicCivil},
    {"hebrew", CalendarIdentifier::hebrew},
    {"chinese", CalendarIdentifier::chinese},
    {"indian", CalendarIdentifier::indian},
    {"coptic", CalendarIdentifier::coptic},
    {"ethiopic", CalendarIdentifier::ethiopic},
});

constexpr auto regions = std::to_array<Named>({
    {"AF", CalendarIdentifier::persian},
    {"IR", CalendarIdentifier::persian},
    {"SA", CalendarIdentifier::islamicUmmAlQura},
    {"TH", CalendarIdentifier::buddhist},
});

// For locales without a region: languages at home in one of those regions.
constexpr auto languages = std::to_array<Named>({
    {"ars", CalendarIdentifier::islamicUmmAlQura},
    {"fa", CalendarIdentifier::persian},
    {"lrc", CalendarIdentifier::persian},
    {"mzn", CalendarIdentifier::persian},
    {"ps", CalendarIdentifier::persian},
    {"th", CalendarIdentifier::buddhist},
    {"uz_Arab", CalendarIdentifier::persian},
});

/// "fa_IR@calendar=hebrew": the keyword's value.
std::string_view calendarKeyword(std::string_view identifier) {
  constexpr std::string_view key = "calendar=";
  const std::size_t at = identifier.find(key);
  if (at == std::string_view::npos || identifier.find('@') > at) return {};
  const std::string_view value = identifier.substr(at + key.size());
  return value.substr(0, value.find(';'));
}

/// The region of "fa_IR" and "uz_Arab_AF"; scripts have four letters.
std::string_view regionOf(std::string_view name) {
  while (true) {
    const std::size_t at = name.find('_');
    if (at == std::string_view::npos) return {};
    name.remove_prefix(at + 1);
    const std::string_view part = name.substr(0, name.find('_'));
    if (part.size() == 2 || part.size() == 3) return part;
  }
}

struct CloseCalendar {
  void operator()(UCalendar* calendar) const { ucal_close(calendar); }
};
using ForeignCalendar = std::unique_ptr<UCalendar, CloseCalendar>;

ForeignCalendar openCalendar(CalendarIdentifier identifier) {
  const auto* const named = std::ranges::find(keywords, identifier, &Named::identifier);
  const std::string locale = "en_US@calendar=" + std::string(named->name);
  UErrorCode status = U_ZERO_ERROR;
  ForeignCalendar calendar(ucal_open(u"GMT", -1, locale.c_str(), UCAL_DEFAULT, &status));
  return U_SUCCESS(status) ? std::move(calendar) : nullptr;
}

struct FieldRow {
  UCalendarDateFields field;
  int first;  ///< what ICU calls the first
};

FieldRow rowOf(CalendarField field) {
  switch (field) {
    case CalendarField::year:
      return {UCAL_YEAR, 1};
    case CalendarField::month:
      return {UCAL_MONTH, 0};
    case CalendarField::dayOfMonth:
      return {UCAL_DATE, 1};
    case CalendarField::dayOfYear:
      return {UCAL_DAY_OF_YEAR, 1};
    case CalendarField::lengthOfMonth:
      return {UCAL_DATE, 1};
  }
  __builtin_unreachable();
}

}  // namespace

CalendarIdentifier calendarIdentifierOf(const Locale& locale) {
  const std::string_view identifier = locale.identifier();
  if (const auto chosen = find(keywords, calendarKeyword(identifier))) return *chosen;
  const std::string_view name = identifier.substr(0, identifier.find('@'));
  const std::string_view region = regionOf(name);
  return (region.empty() ? find(languages, name) : find(regions, region)).value_or(CalendarIdentifier::gregorian);
}

bool hasGregorianDays(CalendarIdentifier identifier) {
  switch (identifier) {
    case CalendarIdentifier::gregorian:
    case CalendarIdentifier::iso8601:
    case CalendarIdentifier::buddhist:
    case CalendarIdentifier::japanese:
    case CalendarIdentifier::minguo:
      return true;
    default:
      return false;
  }
}

std::optional<std::int64_t> calendarField(CalendarIdentifier identifier, CalendarField field,
                                          std::chrono::sys_seconds wallClock) {
  const ForeignCalendar calendar = openCalendar(identifier);
  if (!calendar) return std::nullopt;
  UErrorCode status = U_ZERO_ERROR;
  ucal_setMillis(calendar.get(), static_cast<UDate>(wallClock.time_since_epoch().count()) * 1000, &status);
  const FieldRow row = rowOf(field);
  const std::int32_t value = field == CalendarField::lengthOfMonth
                                 ? ucal_getLimit(calendar.get(), row.field, UCAL_ACTUAL_MAXIMUM, &status)
                                 : ucal_get(calendar.get(), row.field, &status);
  if (U_FAILURE(status)) return std::nullopt;
  return value + 1 - row.first;
}

}  // namespace foundation
