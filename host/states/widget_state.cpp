#include "host/states/widget_state.hpp"

#include "foundation/calendar.hpp"
#include "foundation/file_manager.hpp"

namespace host {

using foundation::Calendar;
using foundation::Date;
using foundation::JSON;

namespace {

Date morningOf(WidgetState::Day day, const messages::World& world) {
  const auto zone = foundation::TimeZone::named(world.timeZone);
  const Calendar calendar = Calendar::iso8601(zone.value_or(foundation::TimeZone()));
  const auto month = calendar.dateInterval(foundation::CalendarPeriod::month, world.now);
  if (!month) return world.now;
  const Date first = month->start;
  const auto last = calendar.dateByAdding(foundation::CalendarComponent::day, -1, month->end);
  const Date chosen = day == WidgetState::Day::firstOfMonth ? first : last.value_or(first);
  return calendar.dateBySettingHour(9, 0, 0, chosen).value_or(chosen);
}

/// What a member holds; nothing where there is none.
template <class Value>
std::optional<Value> member(const JSON& json, const char* name) {
  const auto found = json.find(name);
  if (found == json.end()) return std::nullopt;
  return found->get<Value>();
}

WidgetState::Event eventOf(const std::vector<std::string>& parts) {
  if (parts.size() == 3) return {.title = parts[2], .start = parts[0], .end = parts[1]};
  return {.title = parts.empty() ? "" : parts[0]};
}

}  // namespace

messages::World WidgetState::world(messages::World given, const std::filesystem::path& container) const {
  given.container = container.string();
  if (day != Day::given) given.now = morningOf(day, given);
  if (isDark) given.appearance = "dark";
  if (locale) given.locale = *locale;
  if (screen) given.screen = *screen;
  if (systemVersion) given.systemVersion = *systemVersion;
  given.isRedacted = given.isRedacted || isRedacted;
  return given;
}

std::expected<std::vector<WidgetState>, std::string> readStates(const std::filesystem::path& file) {
  const auto bytes = foundation::readFile(file);
  if (!bytes) return std::unexpected(file.string() + ": " + bytes.error().message());
  try {
    return JSON::parse(*bytes).get<std::vector<WidgetState>>();
  } catch (const JSON::exception& error) {
    return std::unexpected(file.string() + ": " + error.what());
  }
}

void from_json(const JSON& json, WidgetState& state) {
  const auto day = json.value("day", "");
  state = {.name = json.at("name"),
           .tasks = member<std::vector<std::string>>(json, "tasks"),
           .habits = member<std::vector<std::string>>(json, "habits"),
           .isDone = json.value("done", false),
           .hasNoContainer = json.value("container", "") == "missing",
           .isDark = json.value("theme", "") == "dark",
           .isRedacted = json.value("redacted", false),
           .day = day == "firstOfMonth"  ? WidgetState::Day::firstOfMonth
                  : day == "lastOfMonth" ? WidgetState::Day::lastOfMonth
                                         : WidgetState::Day::given,
           .locale = member<std::string>(json, "locale"),
           .screen = member<std::string>(json, "screen"),
           .systemVersion = member<int>(json, "systemVersion")};
  if (const auto events = member<std::vector<std::vector<std::string>>>(json, "events")) {
    state.events.emplace();
    for (const auto& parts : *events) state.events->push_back(eventOf(parts));
  }
  if (const auto days = member<std::vector<int>>(json, "moods")) {
    state.moods = days->size() == 2 ? std::pair((*days)[0], (*days)[1]) : std::pair(0, -1);
  }
}

}  // namespace host
