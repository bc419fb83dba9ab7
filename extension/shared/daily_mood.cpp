#include "shared/daily_mood.hpp"

#include "shared/group_data_manager.hpp"

namespace mirune {

void decode(foundation::JSONValue& value, MiruneDailyMood& mood) {
  foundation::decodeObject(value, foundation::required("id", mood.id), foundation::required("name", mood.name),
                           foundation::required("icon", mood.icon), foundation::required("color", mood.color),
                           foundation::required("isOriginalColor", mood.isOriginalColor),
                           foundation::required("hasBeenDeleted", mood.hasBeenDeleted));
}

MoodFile readMoodFile(const uikit::Platform& platform) {
  auto bytes = GroupDataManager::read(platform, "moods");
  if (!bytes) return {};
  return foundation::decodeJSON<MoodFile>(std::move(*bytes)).value_or(MoodFile{});
}

}  // namespace mirune
