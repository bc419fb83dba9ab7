#include "rendering/glyph_text.hpp"

#include "rendering/letter_attributes.hpp"

namespace rendering {
namespace {

using swiftui::Font;

/// Behind general punctuation symbols begin, many of which are emoji elsewhere.
constexpr gunichar firstSymbol = 0x2070;

/// As fontconfig's tables of languages have it: they tell the ways to write Chinese apart by territory.
PangoLanguage* pangoLanguage(const std::string& tag) {
  std::string name = tag;
  if (tag.starts_with("zh")) {
    const bool isHongKong = tag.contains("HK") || tag.contains("MO");
    const bool isTraditional = isHongKong || tag.contains("Hant") || tag.contains("TW");
    name = isHongKong ? "zh-hk" : isTraditional ? "zh-tw" : "zh-cn";
  }
  return pango_language_from_string(name.c_str());
}

}  // namespace

double GlyphStyle::spacingBehind(std::string_view line) const {
  if (spacing == 0 || line.empty()) return 0;
  const char* const last = g_utf8_find_prev_char(line.data(), line.data() + line.size());
  return last != nullptr && joinsLetters(g_utf8_get_char(last)) ? 0 : spacing;
}

GlyphText::GlyphText() : usual_(FontFolders::systemFont), letters_(usual_.systemCharacters()) {}

bool GlyphText::isUsual(const std::string& content) const {
  for (const char* at = content.c_str(); *at != '\0'; at = g_utf8_next_char(at)) {
    const gunichar character = g_utf8_get_char(at);
    if (character == '\n') continue;
    if (character >= firstSymbol || !letters_ || FcCharSetHasChar(letters_.get(), character) == FcFalse) return false;
  }
  return true;
}

FontSet& GlyphText::fontsFor(const std::string& content) const {
  if (isUsual(content)) return usual_;
  if (!all_) all_.emplace(FontFolders::all);
  return *all_;
}

GObjectHandle<PangoLayout> GlyphText::paragraph(const std::string& content, const GlyphStyle& style,
                                                bool keepsKoreanWords) const {
  FontSet& fonts = fontsFor(content);
  pango_context_set_base_dir(fonts.context(), style.direction == swiftui::LayoutDirection::rightToLeft
                                                  ? PANGO_DIRECTION_WEAK_RTL
                                                  : PANGO_DIRECTION_WEAK_LTR);
  pango_context_set_language(fonts.context(), pangoLanguage(style.language));
  GObjectHandle<PangoLayout> layout(pango_layout_new(fonts.context()));
  pango_layout_set_text(layout.get(), content.c_str(), static_cast<int>(content.size()));
  pango_layout_set_font_description(layout.get(), fonts.description(style.font).get());
  const AttributeList attributes(pango_attr_list_new());
  if (style.spacing != 0) spaceLetters(content, style.spacing, attributes.get());
  if (keepsKoreanWords) keepKoreanWords(content, attributes.get());
  pango_layout_set_attributes(layout.get(), attributes.get());
  return layout;
}

swiftui::FontMetrics GlyphText::customFontMetrics(const Font& font) const {
  struct Unref {
    void operator()(PangoFontMetrics* metrics) const { pango_font_metrics_unref(metrics); }
  };
  constexpr const char* letter = "H";
  FontSet& fonts = fontsFor(letter);
  const std::unique_ptr<PangoFontMetrics, Unref> metrics(
      pango_context_get_metrics(fonts.context(), fonts.description(font).get(), pango_language_from_string("en")));
  const double descent = pango_units_to_double(pango_font_metrics_get_descent(metrics.get()));
  // What a font wants between its lines belongs to each of them: fonts that keep it apart leave too little without it.
  const double ascent = pango_units_to_double(pango_font_metrics_get_height(metrics.get())) - descent;
  const GObjectHandle<PangoLayout> capital = paragraph(letter, {.font = font});
  PangoRectangle ink;
  pango_layout_get_extents(capital.get(), &ink, nullptr);
  return {.ascent = ascent, .descent = descent, .capHeight = pango_units_to_double(ink.height)};
}

}  // namespace rendering
