#include "calendar_mood/mood_day_view.hpp"

#include "calendar_mood/add_placeholder.hpp"
#include "calendar_mood/mood_image.hpp"
#include "calendar_mood/planner_pages.hpp"

namespace mirune {

using namespace swiftui;

View MoodCell::body(const EnvironmentValues&) const {
  if (moodItem.id.empty()) return View(AddPlaceholder{}).padding(5);
  return MoodImage{.mood = moodItem, .label = moodItem.name};
}

View Mood_DayView::body(const EnvironmentValues& environment) const {
  const View name = text(day).font(system(9)).lineLimit(1).minimumScaleFactor(0.5);
  const std::string said = moodItem.id.empty() ? spoken : spoken + ", " + moodItem.name;
  return link(moodPage(*environment.platform, position),
              vstack({}, {MoodCell{.moodItem = moodItem}, name}).accessibilityLabel(said));
}

}  // namespace mirune
