#include "lists/event_lock_screen.hpp"

#include "foundation/fatal_error.hpp"
#include "lists/event_content.hpp"
#include "lists/list_texts.hpp"

namespace mirune {

using namespace swiftui;

namespace {

const EventWidgetInner& firstEvent(const EventEntry& entry) {
  if (entry.data.empty()) foundation::fatalError("an entry counts events and has none");
  return *entry.data.begin();
}

View row(const EventWidgetInner& event, const foundation::Words& words) {
  const std::string timeText = eventTimeText(event.allday, event.time, words);
  const View bar = filled(RoundedRectangle{.cornerRadius = 1})
                       .foregroundColor(event.color)
                       .frame({.width = 2})
                       .padding({.top = 2, .bottom = 2});
  const View texts = vstack({.alignment = HorizontalAlignment::leading, .spacing = 0},
                            {
                                text(event.title).font(system(16, FontWeight::medium)).lineLimit(1),
                                text(timeText).font(system(14)).lineLimit(1).opacity(0.9),
                            })
                         .padding({.leading = 7});
  return hstack({.spacing = 0}, {bar, texts})
      .fixedSize(false, true)
      .accessibilityLabel(spokenEvent(event.title, timeText));
}

/// " 9:00 - Breakfast": the blanks at the start stand between the picture and the text.
std::string inlineText(const EventEntry& entry, const foundation::Words& words) {
  if (entry.count < 1) return words.localized(" No more events");
  const EventWidgetInner& event = firstEvent(entry);
  if (event.allday) return " " + event.title;
  constexpr auto separator = " - ";
  return " " + event.time.substr(0, event.time.find(separator)) + separator + event.title;
}

}  // namespace

View EventRectangularView::body(const EnvironmentValues& environment) const {
  const foundation::Words& words = environment.platform->words;
  const auto leading = [](const View& content) {
    return content.frame({.maxWidth = infinity, .alignment = Alignment::leading});
  };
  if (entry.count < 1) return leading(text(words.localized("No more events today")).font(system(14.5)));
  const View footer = text(moreText(words, entry.count - 1))
                          .font(system(11, FontWeight::regular, FontDesign::rounded))
                          .lineLimit(1)
                          .opacity(0.8);
  return leading(vstack({.alignment = HorizontalAlignment::leading, .spacing = 0},
                        {row(firstEvent(entry), words), when(entry.count >= 2, footer)}));
}

View EventInlineView::body(const EnvironmentValues& environment) const {
  return hstack({.spacing = 0}, {
                                    image("calendar_today").padding(1),
                                    text(inlineText(entry, environment.platform->words)).lineLimit(1),
                                });
}

}  // namespace mirune
