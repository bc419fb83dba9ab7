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
