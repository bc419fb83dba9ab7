#include "lists/event_widget_view.hpp"

#include "foundation/fatal_error.hpp"
#include "lists/event_content.hpp"
#include "lists/header_row.hpp"
#include "lists/list_frame.hpp"
#include "lists/list_texts.hpp"

namespace mirune {

using namespace swiftui;

namespace {

/// The gap below each row, which gives way where three of them and the footer are too tall.
constexpr double rowGap = 4;

std::vector<View> rows(const EventEntry& entry, std::size_t cap) {
  std::vector<View> views;
  for (const EventWidgetInner& event : entry.data) {
    if (views.size() == 2 * cap) break;
    views.emplace_back(
        EventContent{.title = event.title, .isAllDay = event.allday, .time = event.time, .color = event.color});
    views.push_back(spacer(0).frame({.maxHeight = rowGap}));
  }
  return views;
}

View emptyText(const foundation::Words& words) {
  return text(words.localized("No more events today"))
      .font(system(13, FontWeight::light, FontDesign::rounded))
      .padding(1);
}

}  // namespace

std::size_t eventRowCap(uikit::Screen screen) {
  constexpr uikit::Screen shortScreens[] = {{.width = 375, .height = 667}, {.width = 320, .height = 568}};
  const bool isShort = std::ranges::find(shortScreens, screen) != std::end(shortScreens);
  return isShort ? 2 : 3;
}

View EventWidgetView::body(const EnvironmentValues& environment) const {
  const foundation::Words& words = environment.platform->words;
  const std::size_t cap = eventRowCap(environment.platform->screen);
  const long long more = foundation::checkedDifference(entry.count, static_cast<std::int64_t>(cap));
  const View header = shouldAddHeader ? View(HeaderRow{.name = entry.name, .image = entry.image, .date = entry.date})
                                      : View(BareHeaderRow{.name = entry.name});
  return listFrame(vstack({.alignment = HorizontalAlignment::leading, .spacing = 0},
                          {
                              header.padding({.bottom = 3}),
                              entry.count < 1 ? emptyText(words) : group(rows(entry, cap)),
                              when(more >= 1, moreFooter(words, more)),
                          }));
}

}  // namespace mirune
