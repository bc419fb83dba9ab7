#include "timelines/color_offset.hpp"

#include "foundation/fatal_error.hpp"
#include "shared/settings.hpp"

namespace mirune {

std::int64_t colorOffsetFor(std::int64_t ordinalOfDay) {
  constexpr std::int64_t badges = 104;
  const std::int64_t rest = ordinalOfDay % badges;
  return rest < 2 ? 2 - rest : badges + 2 - rest;
}

std::int64_t fixedColorOffset(const uikit::Platform& platform) {
  auto settings = sharedSettings(platform);
  if (settings && settings->boolean(settingsKey::isColorOffsetSet)) return settings->integer(settingsKey::colorOffset);
  const auto ordinal = platform.calendar.ordinalityOfDayInYear(platform.now);
  if (!ordinal) return 0;
  const std::int64_t offset = colorOffsetFor(*ordinal);
  if (settings) {
    settings->set(settingsKey::colorOffset, offset);
    settings->set(settingsKey::isColorOffsetSet, true);
  }
  return offset;
}

std::int64_t badgeNumber(std::int64_t offset, const foundation::Calendar& calendar, foundation::Date day) {
  return foundation::checkedSum(offset, calendar.ordinalityOfDayInYear(day).value_or(0));
}

}  // namespace mirune
