#include <gtest/gtest.h>

#include "catalogue/widgets_bundle.hpp"
#include "planner.hpp"

namespace mirune {
namespace {

/// What a kind offers: its families from version 16 on and, where others, before.
struct Kind {
  const char* kind;
  const char* shortName;
  const char* displayName;
  const char* description;
  std::vector<std::string> families;
  std::vector<std::string> oldFamilies = families;
};

const std::vector<std::string> oldSizes{"systemSmall", "systemMedium"};
const std::vector<std::string> listSizes{"accessoryCircular", "accessoryRectangular", "systemSmall", "systemMedium"};
const std::vector<std::string> eventSizes{"accessoryRectangular", "accessoryInline", "systemSmall", "systemMedium"};

const std::vector<Kind> kinds{
    {"Mirune_Widgets5", "mood", "Mood Check-In", "How are you feeling today?", {"systemMedium", "systemSmall"}},
    {"Mirune_Widgets6", "moods", "Moods", "Monthly moods view", {"systemSmall", "systemLarge"}},
    {"Mirune_Widgets2", "tasks", "Tasks", "Keep track of your tasks.", listSizes, oldSizes},
    {"Mirune_Widgets3", "habits", "Habits", "Keep track of your habits.", listSizes, oldSizes},
    {"Mirune_Widgets4", "events", "Events", "Keep track of your upcoming events and meetings.", eventSizes, oldSizes},
    {"Mirune_Widgets", "quote", "Quote of the Day", "Get daily inspirational quotes.", {"systemMedium"}},
    {"Mirune_Widgets7", "calendar", "Calendar", "Monthly Calendar", {"systemSmall"}},
    {"Mirune_Widgets8", "combined", "Events and Tasks", "Events and Tasks", {"systemMedium"}},
};

TEST(Catalogue, OffersTheKindsInOrder) {
  const Mirune_WidgetsColl bundle(MIRUNE_SHARE);
  for (const int version : {15, 16, 17, 26}) {
    SCOPED_TRACE(version);
    const auto widgets = bundle.body({.systemVersion = version});
    ASSERT_EQ(widgets.size(), kinds.size());
    for (std::size_t index = 0; index < kinds.size(); ++index) {
      const auto& [kind, shortName, displayName, description, families, oldFamilies] = kinds[index];
      const auto described = widgets[index].describe();
      EXPECT_EQ(described.kind, kind);
      EXPECT_EQ(described.shortName, shortName);
      EXPECT_EQ(described.displayName, displayName);
      EXPECT_EQ(described.description, description);
      EXPECT_EQ(described.families, version < 16 ? oldFamilies : families) << kind;
      EXPECT_EQ(widgets[index].areContentMarginsDisabled(), version >= 17) << kind;
      EXPECT_EQ(widgets[index].isContainerBackgroundRemovable(), version < 17) << kind;
    }
  }
}

TEST(Catalogue, AnswersForEveryKindWithoutAContainer) {
  const auto platform = platformAt({}, "");
  for (const auto& widget : Mirune_WidgetsColl(MIRUNE_SHARE).body(platform)) {
    for (const auto operation : {messages::ProviderOperation::placeholder, messages::ProviderOperation::snapshot}) {
      const auto answer = widget.entries(platform, operation);
      ASSERT_EQ(answer.entries.size(), 1U) << widget.kind();
      EXPECT_EQ(answer.kind, widget.kind());
      EXPECT_EQ(answer.policy, "never");
      EXPECT_NO_THROW(widget.content(answer.entries[0])) << widget.kind();
    }
  }
}

}  // namespace
}  // namespace mirune
