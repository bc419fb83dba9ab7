#include "rendering/text_engine.hpp"

#include <gtest/gtest.h>

#include <cairo.h>

#include "rendering/cairo_handles.hpp"

namespace rendering {
namespace {

using namespace swiftui;

const TextEngine& engine() {
  static const TextEngine shared;
  return shared;
}

double width(const std::string& content, const TextStyle& style) {
  return engine().layoutText(content, style, {}).width();
}

std::vector<std::string> linesOf(const TextLayout& layout) {
  std::vector<std::string> lines;
  for (const TextLine& line : layout.lines) lines.push_back(line.content);
  return lines;
}
using Lines = std::vector<std::string>;

/// Where the ink of a line begins and ends, in pixels of a tenth of a point.
std::pair<double, double> inkOf(const std::string& line, const TextStyle& style) {
  constexpr double scale = 10;
  const SurfaceHandle surface(cairo_recording_surface_create(CAIRO_CONTENT_ALPHA, nullptr));
  const CairoHandle cairo(cairo_create(surface.get()));
  cairo_scale(cairo.get(), scale, scale);
  engine().drawLine(cairo.get(), line, style, 1, {});
  double x = 0;
  double y = 0;
  double inkWidth = 0;
  double inkHeight = 0;
  cairo_recording_surface_ink_extents(surface.get(), &x, &y, &inkWidth, &inkHeight);
  return {x, x + inkWidth};
}

TEST(TextEngine, SetsTextsAsWideAsThePlatform) {
  const struct {
    const char* content;
    double size;
    double wanted;
  } rows[] = {{"Hello", 17, 38.81},
              {"This is a test string", 17, 144.09},
              // Without the tracking of 17 points, 26 thousandths of an em in each character.
              {"Hello", 12, 28.92},
              {"This is a test string", 12, 108.11}};
  for (const auto& row : rows) {
    EXPECT_NEAR(width(row.content, {.font = swiftui::system(row.size)}), row.wanted, 0.015 * row.wanted)
        << row.content << " at " << row.size;
  }
}

TEST(TextEngine, SetsEmojiAsLargeAsTheText) {
  for (const double size : {10.0, 20.0}) {
    const TextStyle style{.font = swiftui::system(size)};
    EXPECT_NEAR(width("😀", style), 1.2 * size, 0.3 * size);
    const auto [left, right] = inkOf("😀", style);
    EXPECT_LT(right - left, 10 * 1.5 * size);
  }
}

TEST(TextEngine, PutsTheKerningBehindEachCharacter) {
  const TextStyle plain{.font = swiftui::system(17)};
  for (const double kerning : {-1.0, 2.0, 10.0}) {
    const TextStyle kerned{.font = swiftui::system(17), .kerning = kerning};
    EXPECT_NEAR(width("Hallo", kerned), width("Hallo", plain) + 5 * kerning, 0.01);
    EXPECT_NEAR(width("H", kerned), width("H", plain) + kerning, 0.01);
    EXPECT_EQ(width("", kerned), 0);
    EXPECT_NEAR(inkOf("Hallo", kerned).first, inkOf("Hallo", plain).first, 1);
    // Where writing runs to the left it stands to the left, too.
    const auto [left, right] = inkOf("שלום", plain);
    const auto [kernedLeft, kernedRight] = inkOf("שלום", kerned);
    EXPECT_NEAR(kernedLeft, left + 10 * kerning, 1);
    EXPECT_NEAR(kernedRight, right + 10 * 4 * kerning, 2);
  }
}

TEST(TextEngine, TearsNoJoinedLettersApart) {
  const TextStyle plain{.font = swiftui::system(13)};
  TextStyle kerned = plain;
  kerned.kerning = 1.5;
  for (const char* joined : {"نوفمبر", "नवंबर", "ਨਵੰਬਰ"}) {
    EXPECT_NEAR(width(joined, kerned), width(joined, plain), 1e-9) << joined;
    EXPECT_GT(width(joined, plain), 10) << joined;
    // Beside it other letters keep their spacing.
    EXPECT_NEAR(width(std::string(joined) + " ab", kerned), width(std::string(joined) + " ab", plain) + 3 * 1.5, 0.01)
        << joined;
  }
}

/// Stands for the picture of a line.
std::size_t stencilOf(const std::string& line, const TextStyle& style) {
  const SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_A8, 200, 200));
  const CairoHandle cairo(cairo_create(surface.get()));
  cairo_scale(cairo.get(), 10, 10);
  engine().drawLine(cairo.get(), line, style, 1, {.x = 2, .y = 14});
  cairo_surface_flush(surface.get());
  const auto* pixels = reinterpret_cast<const char*>(cairo_image_surface_get_data(surface.get()));
  const auto size = static_cast<std::size_t>(200 * cairo_image_surface_get_stride(surface.get()));
  return std::hash<std::string_view>()({pixels, size});
}

TEST(TextEngine, HasLettersOfEveryLanguage) {
  const std::size_t unknown = stencilOf("\U0010FFFD", {.font = swiftui::system(13)});
  for (const char* content : {"日", "本", "か", "ネ", "简", "한", "글", "ع", "ש", "न", "ж", "ş", "ã", "Ω"}) {
    for (const auto weight : {FontWeight::light, FontWeight::bold}) {
      const TextStyle style{.font = swiftui::system(13, weight)};
      EXPECT_NE(stencilOf(content, style), unknown) << content;
      const auto [left, right] = inkOf(content, style);
      EXPECT_GT(right - left, 20) << content;
      EXPECT_LT(right - left, 150) << content;
    }
  }
}

TEST(TextEngine, DrawsHanAsTheReaderKnowsThem) {
  const auto drawn = [](const char* language) {
    return stencilOf("骨", {.font = swiftui::system(13), .language = language});
  };
  EXPECT_NE(drawn("ja"), drawn("zh-CN"));
  EXPECT_NE(drawn("zh-TW"), drawn("zh-CN"));
  EXPECT_EQ(drawn("zh-Hans-SG"), drawn("zh-CN"));
  EXPECT_EQ(drawn("zh-Hant"), drawn("zh-TW"));
}

TEST(TextEngine, BreaksAtWordsAndInsideThemOnlyWhereOneIsTooLong) {
  const TextStyle style{.font = swiftui::system(12)};
  EXPECT_EQ(linesOf(engine().layoutText("some words that wrap", style, {.width = 70})),
            (Lines{"some words", "that wrap"}));
  EXPECT_EQ(linesOf(engine().layoutText("one\ntwo\n\nthree", style, {})), (Lines{"one", "two", "", "three"}));
  for (const char* lineBreak : {"\r\n", "\r", "\u2028", "\u2029", "\u0085"}) {
    const std::string content = std::string("one") + lineBreak + "two";
    EXPECT_EQ(linesOf(engine().layoutText(content, style, {})), (Lines{"one", "two"}));
    TextStyle oneLine = style;
    oneLine.lineLimit = 1;
    EXPECT_EQ(engine().layoutText(content, oneLine, {}).shown, "one…");
  }
  const TextLayout broken = engine().layoutText("Donaudampfschifffahrt", style, {.width = 50});
  EXPECT_GT(broken.lines.size(), 2U);
  // Korean is broken at its blanks, Japanese anywhere.
  EXPECT_EQ(linesOf(engine().layoutText("오늘 기분이 어때요", style, {.width = 62})), (Lines{"오늘 기분이", "어때요"}));
  EXPECT_GT(engine().layoutText("오늘기분이어때요", style, {.width = 62}).lines.size(), 1U);
  EXPECT_EQ(linesOf(engine().layoutText("今日の気分は", style, {.width = 62})), (Lines{"今日の気分", "は"}));
  // The blank at which a line was broken takes no room, also where it would stand to the left.
  const TextLayout hebrew = engine().layoutText("שלום עולם", style, {.width = 40});
  EXPECT_EQ(linesOf(hebrew), (Lines{"שלום", "עולם"}));
  EXPECT_NEAR(hebrew.lines[0].width, width("שלום", style), 1e-9);
}

TEST(TextEngine, NeverExceedsItsProposal) {
  const char* contents[] = {"Water the ferns on the balcony",
                            "word",
                            "Donaudampfschifffahrtsgesellschaft",
                            "مرحبا بالعالم الجميل",
                            "שלום עולם טוב מאוד",
                            "👩‍🚀 to the moon and back",
                            "two\nparagraphs of words"};
  for (const std::string content : contents) {
    for (const double kerning : {0.0, 3.0, -0.5}) {
      for (double room = 36; room < 200; room += 7.3) {
        for (const int lines : {1, 2}) {
          const TextStyle style{.font = swiftui::system(13), .kerning = kerning, .lineLimit = lines};
          const TextLayout layout = engine().layoutText(content, style, {.width = room});
          EXPECT_LE(layout.width(), room + 0.002) << content << " in " << room;
          EXPECT_LE(layout.lines.size(), static_cast<std::size_t>(lines)) << content;
          EXPECT_EQ(layout.shown.find(" …"), std::string::npos) << layout.shown;
          if (layout.shown == content) continue;
          EXPECT_TRUE(layout.shown.ends_with("…")) << layout.shown << " in " << room;
        }
      }
    }
  }
}

TEST(TextEngine, MeasuresWhatItDraws) {
  const TextStyle style{.font = swiftui::system(13)};
  // A text fits into the width that it was measured with.
  for (const char* content : {"Water the ferns", "Tuesday", "11 November"}) {
    const TextLayout layout = engine().layoutText(content, style, {.width = width(content, style)});
    EXPECT_EQ(linesOf(layout), Lines{content});
  }
}

TEST(TextEngine, ShrinksATextThatDoesNotFit) {
  TextStyle style{.font = swiftui::system(20), .lineLimit = 1, .minimumScaleFactor = 0.5};
  const double whole = width("Wednesday", {.font = swiftui::system(20)});
  EXPECT_EQ(engine().layoutText("Wednesday", style, {.width = whole + 1}).scale, 1);

  const TextLayout shrunk = engine().layoutText("Wednesday", style, {.width = 0.8 * whole});
  EXPECT_EQ(shrunk.shown, "Wednesday");
  EXPECT_NEAR(shrunk.scale, 0.8, 0.015);
  EXPECT_LE(shrunk.width(), 0.8 * whole + 0.002);
  EXPECT_NEAR(shrunk.height(), shrunk.scale * engine().fontMetrics(swiftui::system(20)).lineHeight(), 1e-9);

  const TextLayout cut = engine().layoutText("Wednesday", style, {.width = 0.3 * whole});
  EXPECT_EQ(cut.scale, 0.5);
  EXPECT_TRUE(cut.shown.ends_with("…"));

  // Several lines may be used before it shrinks, but no word is broken while that can be avoided.
  style.lineLimit = std::nullopt;
  EXPECT_EQ(engine().layoutText("Water the ferns", style, {.width = 60, .height = 100}).scale, 1);
  const TextLayout word = engine().layoutText("Wednesday", style, {.width = 0.7 * whole, .height = 100});
  EXPECT_EQ(linesOf(word), Lines{"Wednesday"});
  // A single letter cannot be broken and shrinks as well.
  EXPECT_LT(engine().layoutText("W", style, {.width = 12, .height = 100}).scale, 1);
}

TEST(TextEngine, TakesAnyBytes) {
  const std::string contents[] = {
      "",
      " ",
      "\n",
      "\xff\xfe",
      "ab\xe2\x82",
      "a\xc3(",
      std::string("a\0b", 3),
      "e\u0301\u0301\u0301",
      "\u202E()",
      "\u200B",
      "\uFEFF",
      "👨‍👩‍👧‍👦🏳️‍🌈",
      "\u0301",
      "\t\t",
      "ﷺ",
      std::string(300, '\n'),
  };
  for (const std::string& content : contents) {
    for (const double room : {infinity, 50.0, 3.0, 0.5, 0.0, -4.0}) {
      for (const auto design : {FontDesign::standard, FontDesign::rounded}) {
        const TextStyle style{
            .font = swiftui::system(12, FontWeight::regular, design), .lineLimit = 2, .minimumScaleFactor = 0.1};
        const TextLayout layout = engine().layoutText(content, style, {.width = room, .height = 20});
        ASSERT_FALSE(layout.lines.empty());
        for (const TextLine& line : layout.lines) inkOf(line.content, style);
      }
    }
  }
  EXPECT_EQ(engine()
                .layoutText("a\xff"
                            "b",
                            {}, {})
                .shown,
            "a\uFFFDb");
  EXPECT_EQ(engine().layoutText(std::string("a\0b", 3), {}, {}).shown, "a\uFFFDb");
}

TEST(TextEngine, KeepsTheLineOfATextThatIsEmptyOrHasNoWidth) {
  const double line = engine().fontMetrics(swiftui::system(17)).lineHeight();
  for (const TextLayout& layout : {engine().layoutText("", {}, {}), engine().layoutText("ab", {}, {.width = 0})}) {
    EXPECT_EQ(layout.width(), 0);
    EXPECT_EQ(layout.height(), line);
    EXPECT_EQ(layout.shown, "");
  }
}

TEST(TextEngine, CutsWhatNoWidgetCouldHold) {
  std::string words;
  for (int i = 0; i < 2000; ++i) words += "word ";
  for (const std::string& content : {words, std::string(10'000, 'W')}) {
    const TextLayout layout = engine().layoutText(content, {.font = swiftui::system(12)}, {.width = 150, .height = 60});
    EXPECT_EQ(layout.lines.size(), 4U);
    EXPECT_LE(layout.width(), 150.002);
    EXPECT_LT(engine().layoutText(content, {}, {}).shown.size(), 4110U);
  }
}

}  // namespace
}  // namespace rendering
