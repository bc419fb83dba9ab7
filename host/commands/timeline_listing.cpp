#include "host/commands/timeline_listing.hpp"

#include <iomanip>
#include <optional>
#include <sstream>

#include "foundation/calendar.hpp"
#include "foundation/iso8601.hpp"

namespace host {

namespace {

using foundation::JSON;

/// "2026-11-21 08:00:00"; a text that is no moment stays as it is.
std::string wallClock(const JSON& moment, const foundation::TimeZone& timeZone) {
  const auto date = moment.is_string() ? foundation::parseMoment(moment.get<std::string>()) : std::nullopt;
  if (!date) return moment.dump();

  struct Part {
    foundation::CalendarComponent component;
    int digits;
    const char* after;
  };
  using enum foundation::CalendarComponent;
  constexpr Part parts[] = {{year, 4, "-"}, {month, 2, "-"},  {day, 2, " "},
                            {hour, 2, ":"}, {minute, 2, ":"}, {second, 2, ""}};
  const auto calendar = foundation::Calendar::iso8601(timeZone);
  std::ostringstream text;
  for (const auto& part : parts) {
    text << std::setfill('0') << std::setw(part.digits) << calendar.component(part.component, *date) << part.after;
  }
  return text.str();
}

std::string brief(const JSON& value) {
  if (value.is_array()) return std::to_string(value.size()) + (value.size() == 1 ? " item" : " items");
  if (value.is_object()) return value.empty() ? "{}" : "{…}";
  return value.dump();
}

std::string members(const JSON& entry) {
  std::string text;
  for (const auto& [name, value] : entry.items()) {
    if (name != "date") text += (text.empty() ? "" : ", ") + name + ": " + brief(value);
  }
  return text;
}

/// A text whose lines but the first are moved to the right.
std::string indented(const std::string& text, std::size_t blanks) {
  std::string result;
  for (const char c : text) {
    result += c;
    if (c == '\n') result.append(blanks, ' ');
  }
  return result;
}

std::string policyText(const JSON& policy, const foundation::TimeZone& timeZone) {
  if (policy.is_string()) return policy.get<std::string>();
  if (policy.is_object() && policy.contains("after")) return "after " + wallClock(policy["after"], timeZone);
  return policy.dump();
}

}  // namespace

std::string timelineListing(const messages::Timeline& timeline, const foundation::TimeZone& timeZone) {
  std::string text;
  for (std::size_t i = 0; i < timeline.entries.size(); ++i) {
    const JSON entry = timeline.wholeEntry(i);
    const auto date = entry.is_object() ? entry.value("date", JSON()) : JSON();
    const auto rest = members(entry);
    text += wallClock(date, timeZone) + (rest.empty() ? "" : "  " + rest) + "\n";
  }
  return text + "policy: " + policyText(timeline.policy, timeZone) + "\n";
}

std::string timelineJSON(const messages::Timeline& timeline) {
  // Entry by entry: written out, those of a full day are far larger than what was sent.
  std::string entries;
  for (std::size_t i = 0; i < timeline.entries.size(); ++i) {
    entries += (i == 0 ? "\n    " : ",\n    ") + indented(timeline.wholeEntry(i).dump(2), 4);
  }
  if (!entries.empty()) entries += "\n  ";
  return "{\n  \"kind\": " + JSON(timeline.kind).dump() + ",\n  \"policy\": " + indented(timeline.policy.dump(2), 2) +
         ",\n  \"entries\": [" + entries + "]\n}\n";
}

}  // namespace host
