#include "shared/diagnosis/settings_problems.hpp"

#include <array>

#include "shared/settings.hpp"
#include "shared/shown_days.hpp"

namespace mirune {
namespace {

using foundation::SettingType;
using foundation::UserDefaults;

std::string integerText(const UserDefaults& settings, std::string_view key) {
  return std::to_string(settings.integer(key));
}

std::string themeText(const UserDefaults& settings, std::string_view key) {
  return integerText(settings, key) + (settings.integer(key) == 1 ? ", dark theme" : ", light theme");
}

std::string booleanText(const UserDefaults& settings, std::string_view key) {
  return settings.boolean(key) ? "true" : "false";
}

struct Setting {
  std::string_view key = {};
  SettingType type = SettingType::integer;
  std::string (*takenFor)(const UserDefaults& settings, std::string_view key) = integerText;
};

constexpr std::array<Setting, 3> knownSettings{{
    {.key = settingsKey::themeMode, .type = SettingType::integer, .takenFor = themeText},
    {.key = settingsKey::isColorOffsetSet, .type = SettingType::boolean, .takenFor = booleanText},
    {.key = settingsKey::colorOffset, .type = SettingType::integer, .takenFor = integerText},
}};

const char* nameOf(SettingType type) {
  switch (type) {
    case SettingType::absent:
      return "nothing";
    case SettingType::boolean:
      return "a boolean";
    case SettingType::integer:
      return "a whole number";
    case SettingType::real:
      return "a number with a fraction";
    case SettingType::text:
      return "a text";
    case SettingType::other:
      return "a value of another type";
  }
  __builtin_unreachable();
}

void appendTypeProblems(const UserDefaults& settings, Problems& problems) {
  for (const Setting& setting : knownSettings) {
    const SettingType type = settings.type(setting.key);
    if (type == SettingType::absent || type == setting.type) continue;
    problems.push_back(std::string(setting.key) + ": " + nameOf(type) + " instead of " + nameOf(setting.type) +
                       ": read as " + setting.takenFor(settings, setting.key));
  }
}

/// The first shown day that has no badge with this offset, and what that does.
std::optional<std::string> badgeProblem(std::int64_t offset, const uikit::Platform& platform) {
  const auto& calendar = platform.calendar;
  const auto start = calendar.startOfDay(platform.now);
  for (int i = 0; i < shownDays; ++i) {
    const auto day = calendar.dateByAdding(foundation::CalendarComponent::day, i, start);
    if (!day) continue;
    std::int64_t badge = 0;
    const bool isTooLarge = __builtin_add_overflow(offset, calendar.ordinalityOfDayInYear(*day).value_or(0), &badge);
    if (!isTooLarge && badge >= 0) continue;
    return std::to_string(offset) + " gives " + foundation::dayKey(*day, calendar.timeZone()) +
           (isTooLarge ? " a badge too large to count: making the timelines stops the extension"
                       : " the badge " + std::to_string(badge) + ": drawing that day stops the extension");
  }
  return std::nullopt;
}

}  // namespace

Problems settingsProblems(const ContainerContents& contents, const uikit::Platform& platform) {
  Problems problems;
  if (!contents.settings) return problems;
  const UserDefaults& settings = *contents.settings;
  appendTypeProblems(settings, problems);
  if (settings.boolean(settingsKey::isColorOffsetSet)) {
    const auto problem = badgeProblem(settings.integer(settingsKey::colorOffset), platform);
    if (problem) problems.push_back(std::string(settingsKey::colorOffset) + ": " + *problem);
  }
  return problems;
}

}  // namespace mirune
