#include "host/demo/demo_template.hpp"

#include <optional>
#include <regex>

#include "foundation/calendar.hpp"
#include "foundation/iso8601.hpp"

namespace host {

namespace {

/// How much of a placeholder that is never closed is shown.
constexpr std::size_t shownLength = 24;

bool isLetter(char c) {
  return ('a' <= c && c <= 'z') || ('A' <= c && c <= 'Z');
}

std::optional<std::string> value(const std::string& placeholder, foundation::Date now,
                                 const foundation::Calendar& calendar) {
  static const std::regex form(R"(\{(?:day([+-]\d{1,5})|time([+-]\d{1,5}) (\d\d):(\d\d))\})");
  std::smatch parts;
  if (!std::regex_match(placeholder, parts, form)) return std::nullopt;

  const bool isTime = parts[2].matched;
  const auto day = calendar.dateByAdding(foundation::CalendarComponent::day, std::stoi(parts[isTime ? 2 : 1]),
                                         calendar.startOfDay(now));
  if (!day) return std::nullopt;
  if (!isTime) return foundation::dayKey(*day, calendar.timeZone());
  const auto time = calendar.dateBySettingHour(std::stoi(parts[3]), std::stoi(parts[4]), 0, *day);
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
    const std::string placeholder(text.substr(index, end + 1 - index));
    const auto replacement = value(placeholder, now, calendar);
    if (!replacement) return std::unexpected(placeholder);
    result += *replacement;
    index = end + 1;
  }
  return result;
}

}  // namespace host
