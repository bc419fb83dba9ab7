#include "rendering/meaning.hpp"

#include <gtest/gtest.h>

#include "rendering/display_list_json.hpp"
#include "support/fake_measurer.hpp"

namespace rendering {
namespace {

using namespace swiftui;

struct Complete {
  static constexpr const char* name = "Complete";
  static constexpr const char* title = "Mark Complete";
  std::optional<foundation::Date> date;

  std::vector<appintents::IntentParameter> parameters() const {
    return {{.title = "id", .value = std::string("A1")}, {.title = "date", .value = date}};
  }
};

Meaning meaningOf(const View& view, Size size = {200, 100}) {
  const ResolvedWidget widget = resolve(view, {});
  Meaning meaning;
  collectMeaning(layout(widget.content, {.bounds = {.size = size}}, support::FakeMeasurer()), meaning);
  return meaning;
}

TEST(Meaning, IsWhatAReaderMeetsInOrder) {
  const View shown =
      vstack({}, {
                     text("TODAY"),
                     toggle({.isOn = true, .intent = Complete{}},
                            hstack({}, {text("x").accessibilityHidden(), text("Buy milk"), text(""), text("09:00")})),
                     toggle({}, text("Water the ferns on the balcony").lineLimit(1)),
                     text("hidden").accessibilityHidden(),
                     text("faded").opacity(0),
                     text("clear").foregroundColor(uikit::clear),
                     text(""),
                     text("two\nlines").background(text("behind")),
                     hstack({}, {text("9"), text("AM")}).accessibilityLabel("Nine"),
                     toggle({}, hstack({}, {text("21").accessibilityLabel("Saturday"), text("Sow")})),
                     text("21").accessibilityLabel("Sunday").opacity(0),
                     text("21").accessibilityLabel("Monday").accessibilityHidden(),
                 });
  EXPECT_EQ(plainText(meaningOf(shown)),
            "TODAY\n"
            "[x] Buy milk, 09:00\n"
            "[ ] Water the ferns on the balcony\n"
            "behind\n"
            "two lines\n"
            "Nine\n"
            "[ ] Saturday, Sow\n");
}

TEST(Meaning, IsMaskedWithWhatIsShown) {
  const View shown =
      vstack({}, {text("Buy milk"), text("a\nb"), resizableImage("cat", {.label = "Happy"}), text("plain").unredacted(),
                  toggle({.intent = Complete{}}, text("Call Mira").accessibilityLabel("Mira")),
                  text("clear").foregroundColor(uikit::clear)});
  const ResolvedWidget widget = resolve(shown, {.isRedacted = true});
  const support::FakeMeasurer measurer;
  const PlacedElement placed = layout(widget.content, {.bounds = {.size = {200, 200}}}, measurer);
  Meaning meaning;
  collectMeaning(placed, meaning);
  EXPECT_EQ(plainText(meaning), "plain\n[ ] \n");

  DisplayList drawn;
  record(placed, drawn);
  const std::string all = jsonOf(drawn).dump();
  for (const char* secret : {"milk", "cat", "Mira"}) EXPECT_EQ(all.find(secret), std::string::npos) << secret;
  const PlacedElement open = layout(resolve(shown, {}).content, {.bounds = {.size = {200, 200}}}, measurer);
  std::vector<Rect> masks;
  for (const DrawCommand& command : drawn) {
    if (const auto* shape = std::get_if<DrawShape>(&command)) masks.push_back(shape->frame);
  }
  ASSERT_EQ(masks.size(), 5U) << "a line of each text, and the picture";
  for (const std::size_t i : {0U, 1U, 2U}) EXPECT_EQ(placed.children[i].frame, open.children[i].frame);
  EXPECT_EQ(masks[0].size.width, open.children[0].text->lines[0].width);
  EXPECT_EQ(masks[3], open.children[2].frame);
}

TEST(Meaning, NamesLinksAndImages) {
  const View cat = resizableImage("cat", {.label = "Happy"});
  const View shown = vstack({}, {
                                    link("https://a/1", hstack({}, {cat, text("24")})),
                                    link("https://a/2", resizableSymbol("plus")),
                                    link("https://a/3", text("two\nlines")),
                                    cat,
                                    cat.accessibilityHidden(),
                                    cat.opacity(0),
                                    resizableImage("paper"),
                                });
  EXPECT_EQ(plainText(meaningOf(shown)),
            "Happy, 24 <https://a/1>\n"
            "https://a/2 <https://a/2>\n"
            "two lines <https://a/3>\n"
            "Happy\n");
  EXPECT_EQ(jsonOf(meaningOf(link("https://a/1", text("24")), {40, 10})).dump(),
            R"([{"role":"link","label":"24","url":"https://a/1","frame":[10,0,20,10]}])");
  EXPECT_EQ(jsonOf(meaningOf(cat, {40, 10})).dump(), R"([{"role":"image","label":"Happy","frame":[0,0,40,10]}])");
}

TEST(Meaning, PrintsAsJSON) {
  const foundation::Date date = foundation::JSON("2026-11-21T08:00:00Z").get<foundation::Date>();
  const View box = toggle({.isOn = false, .intent = Complete{date}}, text("milk"));
  EXPECT_EQ(
      jsonOf(meaningOf(box, {40, 10})).dump(),
      R"([{"role":"checkbox","label":"milk","checked":false,"id":"A1","date":"2026-11-21T08:00:00Z","frame":[0,0,40,10]}])");
  EXPECT_EQ(jsonOf(meaningOf(toggle({.intent = Complete{}}, text("milk")), {40, 10}))[0]["date"], nullptr);
  EXPECT_EQ(jsonOf(meaningOf(text("ab"), {41, 10.333})).dump(),
            R"([{"role":"text","label":"ab","frame":[10.5,0.17,20,10]}])");
}

}  // namespace
}  // namespace rendering
