#include "rendering/display_list.hpp"

#include <gtest/gtest.h>

#include "rendering/display_list_json.hpp"
#include "rendering/scene.hpp"
#include "support/fake_measurer.hpp"

namespace rendering {
namespace {

using namespace swiftui;

DisplayList drawn(const View& view, Size size, LayoutDirection direction = LayoutDirection::leftToRight) {
  support::FakeMeasurer measurer;
  measurer.images = {{"sun", {24, 16}}};
  return compose(resolve(view, {.layoutDirection = direction}), {.size = size, .direction = direction}, measurer).drawn;
}

std::string printed(const View& view, Size size) {
  std::string lines;
  for (const auto& command : jsonOf(drawn(view, size))) lines += command.dump() + "\n";
  return lines;
}

TEST(DisplayList, HoldsOnlyWhatCanBeSeen) {
  const View shape = filled(Rectangle{}).frame({.width = 5, .height = 5});
  const View invisible[] = {
      emptyView(),
      spacer(),
      text(""),
      text("a").opacity(0),
      text("a").foregroundColor(uikit::clear),
      shape.opacity(0.5).opacity(0),
      shape.foregroundColor(uikit::clear),
      filled(Rectangle{}).frame({.width = 0, .height = 5}),
      image("moon"),
      image("sun").opacity(0),
      resizableSymbol("sun").foregroundColor(uikit::clear),
      resizableImage("sun", {.renderingMode = RenderingMode::asTemplate}).foregroundColor(uikit::clear),
  };
  for (const View& view : invisible) EXPECT_EQ(printed(view, {50, 50}), "");
  // A picture in its own colours does not mind the foreground colour.
  EXPECT_EQ(drawn(image("sun").foregroundColor(uikit::clear), {50, 50}).size(), 1U);
}

TEST(DisplayList, PaintsBackgroundsFirstAndOverlaysLast) {
  const View shown =
      text("ab").background(image("sun")).overlay(text("c")).containerBackground(resizableImage("paper"));
  const DisplayList list = drawn(shown, {20, 10});
  ASSERT_EQ(list.size(), 4U);
  EXPECT_EQ(std::get<DrawImage>(list[0]).name, "paper");
  EXPECT_EQ(std::get<DrawImage>(list[1]).name, "sun");
  EXPECT_EQ(std::get<DrawText>(list[2]).shown, "ab");
  EXPECT_EQ(std::get<DrawText>(list[3]).shown, "c");
}

TEST(DisplayList, PrintsAsJSON) {
  using uikit::RGBA;
  EXPECT_EQ(
      printed(text("TASKS").font(swiftui::system(13, FontWeight::medium, FontDesign::rounded)).opacity(0.9), {50, 10}),
      R"({"draw":"text","text":"TASKS","frame":[0,0,50,10],"font":"system","size":13,"weight":"medium","design":"rounded","opacity":0.9,"color":"#000000"})"
      "\n");
  EXPECT_EQ(
      printed(
          text("ab cd").font(custom("Marker", 9.666)).kerning(1.5).lineLimit(1).foregroundColor(RGBA{1, 0, 0.5, 0.5}),
          {40.333, 10}),
      R"({"draw":"text","text":"ab…","frame":[5.17,0,30,10],"font":"Marker","size":9.67,"weight":"regular","design":"default","kerning":1.5,"opacity":1,"color":"#FF008080"})"
      "\n");
  EXPECT_EQ(
      printed(strokedInside(RoundedRectangle{.cornerRadius = 4}, {.lineWidth = 1}).opacity(0.7), {20, 10}),
      R"({"draw":"shape","shape":"roundedRectangle","cornerRadius":4,"frame":[0,0,20,10],"stroke":{"width":1,"dash":[],"lineCap":"butt"},"fill":null,"opacity":0.7,"color":"#000000"})"
      "\n");
  EXPECT_EQ(
      printed(stroked(Circle{}, {.lineWidth = 2.5, .lineCap = LineCap::round, .dash = {3, 1.255}}), {20, 10}),
      R"({"draw":"shape","shape":"circle","frame":[5,0,10,10],"stroke":{"width":2.5,"dash":[3,1.25],"lineCap":"round"},"fill":null,"opacity":1,"color":"#000000"})"
      "\n");
  EXPECT_EQ(
      printed(filled(Rectangle{}).foregroundColor(RGBA{0, 0, 1}), {20, 10}),
      R"({"draw":"shape","shape":"rectangle","frame":[0,0,20,10],"stroke":null,"fill":"#0000FF","opacity":1,"color":"#0000FF"})"
      "\n");
  EXPECT_EQ(printed(resizableImage("Asset 51aa"), {20, 10}),
            R"({"draw":"image","name":"Asset 51aa","frame":[0,0,20,10]})"
            "\n");
  EXPECT_EQ(printed(resizableSymbol("sun").foregroundColor(RGBA{1, 1, 1}).opacity(0.5), {20, 10}),
            R"({"draw":"image","name":"sun","frame":[0,0,20,10],"tint":"#FFFFFF","opacity":0.5})"
            "\n");
}

TEST(DisplayList, TintsTemplatesAndKnowsWhereElseAPictureMayBe) {
  const ImageOptions options{.renderingMode = RenderingMode::asTemplate, .folder = "/icons"};
  const View blob = image("sun", options).foregroundColor(uikit::RGBA{1, 0, 0.5});
  EXPECT_EQ(printed(blob, {24, 16}), R"({"draw":"image","name":"sun","frame":[0,0,24,16],"tint":"#FF0080"})"
                                     "\n");
  EXPECT_EQ(std::get<DrawImage>(drawn(blob, {24, 16}).at(0)).folder, "/icons");
}

TEST(DisplayList, PrintsTheScaleOfATextThatIsShrunk) {
  const auto json = jsonOf(DisplayList{DrawText{.shown = "a", .scale = 0.8333}, DrawText{.shown = "b"}});
  EXPECT_EQ(json[0]["scale"], 0.83);
  EXPECT_FALSE(json[1].contains("scale"));
}

TEST(DisplayList, AlignsTheLinesOfAText) {
  const struct {
    TextAlignment alignment;
    LayoutDirection direction;
    double x;  ///< of the short line, in a text 40 wide
  } rows[] = {
      {TextAlignment::leading, LayoutDirection::leftToRight, 0},
      {TextAlignment::center, LayoutDirection::leftToRight, 10},
      {TextAlignment::trailing, LayoutDirection::leftToRight, 20},
      {TextAlignment::leading, LayoutDirection::rightToLeft, 20},
      {TextAlignment::trailing, LayoutDirection::rightToLeft, 0},
  };
  for (const auto& row : rows) {
    const DisplayList list = drawn(text("abcd\nef").multilineTextAlignment(row.alignment), {40, 20}, row.direction);
    const auto& lines = std::get<DrawText>(list.at(0)).lines;
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].origin, (Point{0, 8}));
    EXPECT_EQ(lines[1].origin, (Point{row.x, 18}));
  }
}

TEST(Scene, LeavesMarginsAroundTheContentOnly) {
  const ResolvedWidget widget =
      resolve(filled(Circle{}).containerBackground(filled(Rectangle{})).colorScheme(ColorScheme::dark), {});
  const EdgeInsets margins{.top = 1, .leading = 2, .bottom = 3, .trailing = 4};
  for (const auto direction : {LayoutDirection::leftToRight, LayoutDirection::rightToLeft}) {
    const Scene scene =
        compose(widget, {.size = {106, 14}, .margins = margins, .direction = direction}, support::FakeMeasurer());
    ASSERT_EQ(scene.drawn.size(), 2U);
    EXPECT_EQ(std::get<DrawShape>(scene.drawn[0]).frame, (Rect{{0, 0}, {106, 14}}));
    const double left = direction == LayoutDirection::leftToRight ? 2 : 4;
    EXPECT_EQ(std::get<DrawShape>(scene.drawn[1]).frame, (Rect{{left + 45, 1}, {10, 10}}));
    EXPECT_EQ(scene.colorScheme, ColorScheme::dark);
  }
}

}  // namespace
}  // namespace rendering
