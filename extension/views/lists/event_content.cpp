#include "lists/event_content.hpp"

namespace mirune {

using namespace swiftui;

std::string eventTimeText(bool isAllDay, const std::string& time, const foundation::Words& words) {
  return isAllDay ? words.localized("All Day") : time;
}

std::string spokenEvent(const std::string& title, const std::string& time) {
  return title.empty() ? time : title + ", " + time;
}

View EventContent::body(const EnvironmentValues& environment) const {
  const std::string timeText = eventTimeText(isAllDay, time, environment.platform->words);
  const View bar = filled(Rectangle{}).foregroundColor(color).frame({.width = 0.75});
  const View texts = vstack({.alignment = HorizontalAlignment::leading, .spacing = 0},
                            {
                                text(title).font(system(13, FontWeight::light)).lineLimit(1),
                                text(timeText).font(system(10, FontWeight::light)).lineLimit(1),
                            })
                         .padding({.top = 2, .leading = 7, .bottom = 2});
  // The bar is as tall as the texts, not as the room that the list has left.
  return hstack({.spacing = 0}, {bar, texts}).fixedSize(false, true).accessibilityLabel(spokenEvent(title, timeText));
}

}  // namespace mirune
