#include <gtest/gtest.h>

#include "drawing.hpp"
#include "lists/task_widget_view.hpp"
#include "support/languages.hpp"
#include "timelines/providers.hpp"

namespace mirune {
namespace {

template <class OfList>
void expectEmptyText(const std::string& language, const char* english) {
  Planner planner;
  uikit::Platform platform = planner.at({.locale = language});
  platform.words = foundation::Words::load(MIRUNE_SHARE "/words", foundation::Locale::named(language).value());
  const auto entries = OfList().entries(platform);
  ASSERT_FALSE(entries.empty());
  const swiftui::View wide = TaskWidgetView{.entry = entries.front(), .shouldAddHeader = false};
  const auto texts = textsOf(sceneOfView(wide, platform, {.width = 338, .height = 158}));
  ASSERT_EQ(texts.size(), 2U) << "the list's name and the text";
  const std::string expected = platform.words.localized(english);
  EXPECT_NE(expected, english);
  EXPECT_EQ(texts.back(), expected) << "under the key with " << entries.front().name << " in small letters";
}

TEST(EmptyList, SaysSoInEveryLanguage) {
  for (const char* language : support::languages) {
    SCOPED_TRACE(language);
    expectEmptyText<TaskProvider>(language, "No more tasks today");
    expectEmptyText<HabitProvider>(language, "No more habits today");
  }
}

}  // namespace
}  // namespace mirune
