#include "calendar_mood/mood_unit_view.hpp"

#include "calendar_mood/accent_color.hpp"
#include "calendar_mood/mood_image.hpp"
#include "calendar_mood/spoken_day.hpp"
#include "calendar_mood/square.hpp"

namespace mirune {

using namespace swiftui;

View MoodUnitView::body(const EnvironmentValues& environment) const {
  if (day == emptyCell) return inSquare(emptyView());
  const std::string number = std::to_string(day);
  const std::string said = isToday ? spokenToday(environment.platform->words, number) : number;
  if (!moodItem.id.empty()) return MoodImage{.mood = moodItem, .label = said + ", " + moodItem.name};
  const View plain = text(number).font(system(textsize));
  const View label =
      selected ? text(number).font(system(textsize, FontWeight::semibold)).foregroundColor(accentColor()).opacity(0.9)
               : plain;
  const View ground = filled(Circle{}).foregroundColor(uikit::SystemColor::gray).opacity(0.1);
  // In a small cell the padding may reach over its edge, the number never.
  return ground.overlay(label.padding(4).fixedSize()).accessibilityLabel(said);
}

}  // namespace mirune
