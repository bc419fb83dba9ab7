#include <gtest/gtest.h>

#include "laid_out.hpp"

namespace swiftui {
namespace {

TextElement resolvedText(const View& view, const EnvironmentValues& environment = {}) {
  const ResolvedWidget widget = resolve(view, environment);
  const auto* element = std::get_if<TextElement>(&widget.content.value);
  EXPECT_NE(element, nullptr);
  return element != nullptr ? *element : TextElement{};
}

TEST(Resolving, WorksTheEnvironmentIntoTheLeaves) {
  const TextElement plain = resolvedText(text("a"));
  EXPECT_EQ(plain.style, (TextStyle{.font = system(17), .language = "en-US"}));
  EXPECT_EQ(plain.paint, (Paint{.color = {0, 0, 0, 1}}));

  const TextElement styled = resolvedText(text("a")
                                              .font(system(12, FontWeight::bold))
                                              .kerning(2)
                                              .lineLimit(3)
                                              .minimumScaleFactor(0.5)
                                              .multilineTextAlignment(TextAlignment::center)
                                              .foregroundColor(uikit::SystemColor::pink)
                                              .accessibilityHidden(),
                                          {.layoutDirection = LayoutDirection::rightToLeft});
  EXPECT_EQ(styled.style, (TextStyle{.font = system(12, FontWeight::bold),
                                     .kerning = 2,
                                     .lineLimit = 3,
                                     .minimumScaleFactor = 0.5,
                                     .alignment = TextAlignment::center,
                                     .direction = LayoutDirection::rightToLeft,
                                     .language = "en-US"}));
  EXPECT_TRUE(styled.paint.accessibilityHidden);
}

TEST(Resolving, LetsTheInnerModifierWinButMultipliesOpacities) {
  const View shown = text("a").font(system(9)).opacity(0.5).foregroundColor(uikit::RGBA{.red = 1});
  const TextElement element =
      resolvedText(shown.font(system(30)).opacity(0.4).foregroundColor(uikit::RGBA{.green = 1}));
  EXPECT_EQ(element.style.font, system(9));
  EXPECT_EQ(element.paint.color, uikit::RGBA{.red = 1});
  EXPECT_DOUBLE_EQ(element.paint.opacity, 0.2);
}

TEST(Resolving, TakesSystemColoursFromTheSchemeAround) {
  const View dark = text("a").colorScheme(ColorScheme::dark);
  EXPECT_EQ(resolvedText(dark).paint.color, (uikit::RGBA{1, 1, 1, 1}));
  EXPECT_EQ(resolvedText(dark).paint.colorScheme, ColorScheme::dark);
  EXPECT_EQ(resolvedText(text("a"), {.colorScheme = ColorScheme::dark}).paint.color, (uikit::RGBA{1, 1, 1, 1}));
}

TEST(Resolving, SplicesGroupsIntoTheirStack) {
  const View column = vstack({.spacing = 1}, {group({text("a"), emptyView(), group({text("b")})}),
                                              when(false, text("c")), when(true, text("d"))});
  EXPECT_EQ(laidOut(column, {10, 32}), R"(
vstack (0,0) 10x32
  text "a" (0,0) 10x10
  text "b" (0,11) 10x10
  text "d" (0,22) 10x10
)");
  EXPECT_EQ(laidOut(group({text("a"), text("bc")}).padding(1), {22, 12}), R"(
zstack (0,0) 22x12
  padding (5,0) 12x12
    text "a" (6,1) 10x10
  padding (0,0) 22x12
    text "bc" (1,1) 20x10
)");
}

TEST(ContainerBackground, IsTakenOutOfTheContentAndTheOutermostWins) {
  const View content = hstack({}, {text("a").containerBackground(text("inner")).opacity(0.5)});
  const ResolvedWidget one = resolve(content, {});
  ASSERT_TRUE(one.containerBackground);
  EXPECT_EQ(std::get<TextElement>(one.containerBackground->value).content, "inner");
  EXPECT_EQ(std::get<TextElement>(one.containerBackground->value).paint.opacity, 0.5);
  EXPECT_EQ(one.content.children.size(), 1U);

  const ResolvedWidget two = resolve(content.containerBackground(text("outer")), {});
  EXPECT_EQ(std::get<TextElement>(two.containerBackground->value).content, "outer");
  EXPECT_FALSE(resolve(text("a"), {}).containerBackground);
}

TEST(Resolving, KeepsTheOutermostAddressOfTheWidget) {
  EXPECT_EQ(resolve(text("a"), {}).url, std::nullopt);
  const View shown = vstack({}, {text("a").widgetURL("inner").padding(3)}).widgetURL("outer");
  EXPECT_EQ(resolve(shown.font(system(9)), {}).url, "outer");
}

}  // namespace
}  // namespace swiftui
