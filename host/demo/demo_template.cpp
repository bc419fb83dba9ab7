#include "host/demo/demo_template.hpp"

#include <algorithm>
#include <optional>

#include "foundation/calendar.hpp"
#include "foundation/iso8601.hpp"

namespace host {

namespace {

/// How much of a placeholder that is never closed is shown.
constexpr std::size_t shownLength = 24;

bool isLetter(char c) {
  return ('a' <= c && c <= 'z') || ('A' <= c && c <= 'Z');
}
bool isDigit(char c) {
  return '0' <= c && c <= '9';
}

/// Takes a text off the front of another, where it stands there.
bool take(std::string_view& rest, std::string_view prefix) {
  if (!rest.starts_with(prefix)) return false;
  rest.remove_prefix(prefix.size());
  return true;
}

/// Takes a number of `least` to `most` digits off the front.
std::optional<int> takeNumber(std::string_view& rest, std::size_t least, std::size_t most) {
  int number = 0;
  std::size_t length = 0;
  for (; length < most && length < rest.size() && isDigit(rest[length]); ++length) {
    number = number * 10 + (rest[length] - '0');
  }
  if (length < least) return std::nullopt;
  rest.remove_prefix(length);
  return number;
}

std::optional<int> takeDays(std::string_view& rest) {
  const bool isBefore = take(rest, "-");
  if (!isBefore && !take(rest, "+")) return std::nullopt;
  const auto days = takeNumber(rest, 1, 5);
  return days && isBefore ? -*days : days;
}

/// What a placeholder such as "{day+0}" or "{time+1 09:30}" stands for; nothing for any other text.
std::optional<std::string> value(std::string_view rest, foundation::Date now, const foundation::Calendar& calendar) {
  const bool isTime = take(rest, "{time");
  if (!isTime && !take(rest, "{day")) return std::nullopt;
  const auto days = takeDays(rest);
  if (!days) return std::nullopt;
  const auto day = calendar.dateByAdding(foundation::CalendarComponent::day, *days, calendar.startOfDay(now));
  if (!day) return std::nullopt;
  if (!isTime) return rest == "}" ? std::optional(foundation::dayKey(*day, calendar.timeZone())) : std::nullopt;

  if (!take(rest, " ")) return std::nullopt;
  const auto hour = takeNumber(rest, 2, 2);
  if (!hour || !take(rest, ":")) return std::nullopt;
  const auto minute = takeNumber(rest, 2, 2);
  if (!minute || rest != "}") return std::nullopt;
  const auto time = calendar.dateBySettingHour(*hour, *minute, 0, *day);
  return time ? std::optional(foundation::formatISO8601(*time)) : std::nullopt;
}

}  // namespace

std::expected<std::string, std::string> expandTemplate(std::string_view text, foundation::Date now,
                                                       const foundation::TimeZone& timeZone) {
  const auto calendar = foundation::Calendar::iso8601(timeZone);
  std::string result;
  for (std::size_t index = 0; index < text.size();) {
    if (text[index] != '{' || index + 1 == text.size() || !isLetter(text[index + 1])) {
      result += text[index++];
      continue;
    }
    const auto end = text.find_first_of("}\n", index);
    if (end == std::string_view::npos || text[end] == '\n') {
      return std::unexpected(std::string(text.substr(index, std::min(end - index, shownLength))));
    }
    const auto placeholder = text.substr(index, end + 1 - index);
    const auto replacement = value(placeholder, now, calendar);
    if (!replacement) return std::unexpected(std::string(placeholder));
    result += *replacement;
    index = end + 1;
  }
  return result;
}

}  // namespace host
