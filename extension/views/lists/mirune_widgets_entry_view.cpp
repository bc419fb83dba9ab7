#include "lists/mirune_widgets_entry_view.hpp"

#include "foundation/fatal_error.hpp"
#include "styling/fonts.hpp"
#include "timelines/thought_of_the_day.hpp"

namespace mirune {

using namespace swiftui;

namespace {

constexpr std::string_view separator = ";;;;";
/// Small enough for every saying on every screen; none of them comes near it.
constexpr double smallestScale = 0.5;

Font quoteItalic() {
  Font font = custom(quoteFont, 14);
  font.italic = true;
  return font;
}

View title(const foundation::Words& words) {
  return text(words.localized("QUOTE OF THE DAY"))
      .font(system(12, FontWeight::bold))
      .kerning(1)
      .lineLimit(1)
      .minimumScaleFactor(smallestScale)
      .frame({.height = 10})
      .opacity(0.6)
      .accessibilityLabel(words.localized("Quote of the Day"));
}

}  // namespace

std::string shownThought(std::span<const std::string_view> thoughts, std::int64_t index) {
  if (index < 0 || static_cast<std::size_t>(index) >= thoughts.size()) {
    foundation::fatalError("there is no saying of the number " + std::to_string(index));
  }
  const std::string_view thought = thoughts[static_cast<std::size_t>(index)];
  const std::size_t end = thought.find(separator);
  if (end == std::string_view::npos) foundation::fatalError("a saying has no author: " + std::string(thought));
  const std::string_view rest = thought.substr(end + separator.size());
  const std::string_view author = rest.substr(0, rest.find(separator));
  return std::string(thought.substr(0, end)) + " \n\n- " + std::string(author);
}

View Mirune_WidgetsEntryView::body(const EnvironmentValues& environment) const {
  const uikit::Platform& platform = *environment.platform;
  const std::string quote = shownThought(thoughts, thoughtIndexToday(platform, thoughts.size()));
  return vstack({.alignment = HorizontalAlignment::leading},
                {
                    title(platform.words),
                    text(quote)
                        .font(quoteItalic())
                        .minimumScaleFactor(smallestScale)
                        .opacity(0.9)
                        .frame({.maxWidth = infinity, .maxHeight = infinity, .alignment = Alignment::leading}),
                })
      .padding(16);
}

}  // namespace mirune
