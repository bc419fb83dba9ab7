#include "lists/task_widget_view.hpp"

#include "foundation/fatal_error.hpp"
#include "foundation/strings.hpp"
#include "lists/header_row.hpp"
#include "lists/list_frame.hpp"
#include "lists/list_texts.hpp"
#include "lists/system_features.hpp"
#include "lists/test_toggle.hpp"
#include "lists/todo_content.hpp"

namespace mirune {

using namespace swiftui;

namespace {

/// Of every family, small and large.
constexpr std::size_t rowCap = 3;
/// Rows stand closer on the smallest screens, so that three of them and the footer fit.
constexpr double closestRows = 23;
constexpr double widestRows = 27;

View row(const TaskWidgetInner& item, bool isInteractive) {
  const View content = isInteractive
                           ? View(TestToggle{.id = item.id.string(), .text = item.title, .date = item.date})
                           : View(TodoContent{.on = item.isOn, .text = item.title}).font(system(14, FontWeight::light));
  return content.padding({.top = 1, .bottom = 1}).frame({.minHeight = closestRows, .maxHeight = widestRows});
}

View rows(const TaskEntry& entry, bool isInteractive) {
  std::vector<View> views;
  for (const TaskWidgetInner& item : entry.data) {
    if (views.size() == rowCap) break;
    views.push_back(row(item, isInteractive));
  }
  return group(std::move(views));
}

View emptyText(const TaskEntry& entry, const foundation::Words& words) {
  const std::string key = "No more " + foundation::lowercased(entry.name) + " today";
  return text(words.localized(key)).font(system(13, FontWeight::light, FontDesign::rounded)).padding(1);
}

}  // namespace

View TaskWidgetView::body(const EnvironmentValues& environment) const {
  const foundation::Words& words = environment.platform->words;
  const bool isInteractive = environment.platform->systemVersion >= interactiveVersion;
  const View header = shouldAddHeader ? View(HeaderRow{.name = entry.name, .image = entry.image, .date = entry.date})
                                      : View(BareHeaderRow{.name = entry.name});
  const long long more = foundation::checkedDifference(entry.count, rowCap);
  return listFrame(vstack({.alignment = HorizontalAlignment::leading, .spacing = 0},
                          {
                              header.padding({.bottom = 3}),
                              entry.count < 1 ? emptyText(entry, words) : rows(entry, isInteractive),
                              more >= 1 ? moreFooter(words, more).padding({.top = 3}) : emptyView(),
                          }));
}

}  // namespace mirune
