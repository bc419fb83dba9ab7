#include "styling/backgrounds.hpp"

#include "styling/theme.hpp"

namespace mirune {

using namespace swiftui;

namespace {

/// From this version on the system draws a widget's background; before, it is a part of the content.
constexpr int containerBackgroundVersion = 17;

}  // namespace

View AddBackgroundModifier::body(const EnvironmentValues& environment) const {
  const View paper = resizableImage("paper1new_widget").colorScheme(plannerTheme(*environment.platform)).unredacted();
  if (environment.platform->systemVersion >= containerBackgroundVersion) return content.containerBackground(paper);
  return content.frame({.maxWidth = infinity, .maxHeight = infinity}).background(paper);
}

View ClearBackgroundModifier::body(const EnvironmentValues& environment) const {
  if (environment.platform->systemVersion >= containerBackgroundVersion) {
    return content.containerBackground(emptyView());
  }
  return content;
}

}  // namespace mirune
