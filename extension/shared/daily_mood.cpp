#include "shared/daily_mood.hpp"

namespace mirune {

void decode(foundation::JSONValue value, MiruneDailyMood& mood) {
  foundation::decodeObject(value, foundation::required("id", mood.id), foundation::required("name", mood.name),
                           foundation::required("icon", mood.icon), foundation::required("color", mood.color),
                           foundation::required("isOriginalColor", mood.isOriginalColor),
                           foundation::required("hasBeenDeleted", mood.hasBeenDeleted));
}

}  // namespace mirune
