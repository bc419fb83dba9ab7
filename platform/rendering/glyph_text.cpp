#include "rendering/glyph_text.hpp"

#include <pango/pangofc-fontmap.h>

#include <array>
#include <cmath>

#include "rendering/font_registry.hpp"

namespace rendering {
namespace {

using swiftui::Font;
using swiftui::FontDesign;

// The names of the two lightest weights are swapped between the platform and Pango; the numbers agree.
constexpr std::array<int, 9> pangoWeights{100, 200, 300, 400, 500, 600, 700, 800, 900};

int pangoWeight(const Font& font) {
  auto index = static_cast<std::size_t>(font.weight);
  // The rounded design is drawn as outlines with a round pen around them, which makes them one weight heavier.
  if (font.design == FontDesign::rounded && index > 0) --index;
  return pangoWeights.at(index);
}

struct FreeFontOptions {
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};

int pangoUnits(double points) {
  return static_cast<int>(std::lround(points * PANGO_SCALE));
}

/// Whether the script's letters hang together: on a line of their own, or by the line that they hang from.
bool joinsLetters(gunichar character) {
  switch (g_unichar_get_script(character)) {
    case G_UNICODE_SCRIPT_ARABIC:
    case G_UNICODE_SCRIPT_SYRIAC:
    case G_UNICODE_SCRIPT_NKO:
    case G_UNICODE_SCRIPT_MONGOLIAN:
    case G_UNICODE_SCRIPT_DEVANAGARI:
    case G_UNICODE_SCRIPT_BENGALI:
    case G_UNICODE_SCRIPT_GURMUKHI:
      return true;
    default:
      return false;
  }
}

using AttributeList =
    std::unique_ptr<PangoAttrList, decltype([](PangoAttrList* list) { pango_attr_list_unref(list); })>;

/// Spaces all letters but those that it would tear apart.
void spaceLetters(const std::string& content, double spacing, PangoAttrList* attributes) {
  const auto space = [&](const char* from, const char* to) {
    if (from == to) return;
    PangoAttribute* attribute = pango_attr_letter_spacing_new(pangoUnits(spacing));
    attribute->start_index = static_cast<guint>(from - content.c_str());
    attribute->end_index = static_cast<guint>(to - content.c_str());
    pango_attr_list_insert(attributes, attribute);
  };
  const char* const end = content.c_str() + content.size();
  const char* start = content.c_str();
  for (const char* at = start; at < end; at = g_utf8_next_char(at)) {
    if (!joinsLetters(g_utf8_get_char(at))) continue;
    space(start, at);
    start = g_utf8_next_char(at);
  }
  space(start, end);
}

/// Forbids to break within the words that have Korean letters.
void keepKoreanWords(const std::string& content, PangoAttrList* attributes) {
  const char* const end = content.c_str() + content.size();
  for (const char* at = content.c_str(); at < end;) {
    const char* const start = at;
    bool isKorean = false;
    for (; at < end && g_unichar_isspace(g_utf8_get_char(at)) == FALSE; at = g_utf8_next_char(at)) {
      isKorean = isKorean || g_unichar_get_script(g_utf8_get_char(at)) == G_UNICODE_SCRIPT_HANGUL;
    }
    if (isKorean) {
      PangoAttribute* attribute = pango_attr_allow_breaks_new(FALSE);
      attribute->start_index = static_cast<guint>(start - content.c_str());
      attribute->end_index = static_cast<guint>(at - content.c_str());
      pango_attr_list_insert(attributes, attribute);
    }
    if (at < end) at = g_utf8_next_char(at);
  }
}

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

GlyphText::GlyphText()
    : fontconfig_(makeFontconfig()), fontMap_(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT)) {
  pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(fontMap_.get()), fontconfig_.get());
  pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(fontMap_.get()), 72);
  context_.reset(pango_font_map_create_context(fontMap_.get()));
  pango_context_set_round_glyph_positions(context_.get(), FALSE);
  const std::unique_ptr<cairo_font_options_t, FreeFontOptions> options(cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
  pango_cairo_context_set_font_options(context_.get(), options.get());
}

GObjectHandle<PangoLayout> GlyphText::paragraph(const std::string& content, const GlyphStyle& style,
                                                bool keepsKoreanWords) const {
  pango_context_set_base_dir(context_.get(), style.direction == swiftui::LayoutDirection::rightToLeft
                                                 ? PANGO_DIRECTION_WEAK_RTL
                                                 : PANGO_DIRECTION_WEAK_LTR);
  pango_context_set_language(context_.get(), pangoLanguage(style.language));
  GObjectHandle<PangoLayout> layout(pango_layout_new(context_.get()));
  pango_layout_set_text(layout.get(), content.c_str(), static_cast<int>(content.size()));
  pango_layout_set_font_description(layout.get(), description(style.font).get());
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
  const std::unique_ptr<PangoFontMetrics, Unref> metrics(
      pango_context_get_metrics(context_.get(), description(font).get(), nullptr));
  const double descent = pango_units_to_double(pango_font_metrics_get_descent(metrics.get()));
  // What a font wants between its lines belongs to each of them: fonts that keep it apart leave too little without it.
  const double ascent = pango_units_to_double(pango_font_metrics_get_height(metrics.get())) - descent;
  const GObjectHandle<PangoLayout> capital = paragraph("H", {.font = font});
  PangoRectangle ink;
  pango_layout_get_extents(capital.get(), &ink, nullptr);
  return {.ascent = ascent, .descent = descent, .capHeight = pango_units_to_double(ink.height)};
}

FontDescription GlyphText::description(const Font& font) const {
  FontDescription description(pango_font_description_new());
  int weight = pangoWeight(font);
  std::string family(systemFamily);
  if (!font.name.empty()) {
    const FontFace& face = customFace(font);
    if (!face.family.empty()) {
      family = face.family;
      weight = FcWeightToOpenType(face.weight);
    }
  }
  pango_font_description_set_family(description.get(), family.c_str());
  pango_font_description_set_weight(description.get(), static_cast<PangoWeight>(weight));
  pango_font_description_set_absolute_size(description.get(), font.size * PANGO_SCALE);
  if (font.italic) pango_font_description_set_style(description.get(), PANGO_STYLE_ITALIC);
  return description;
}

const FontFace& GlyphText::customFace(const Font& font) const {
  const auto known = customFaces_.find(font.name);
  if (known != customFaces_.end()) return known->second;
  FontFace face;
  if (const auto files = registeredFont(font.name)) {
    // The family is asked for by name, so the files have to be among those that fontconfig knows.
    for (const auto& file : {files->upright, files->italic}) {
      if (!file.empty()) FcConfigAppFontAddFile(fontconfig_.get(), reinterpret_cast<const FcChar8*>(file.c_str()));
    }
    face = readFontFace(files->upright);
    pango_fc_font_map_config_changed(PANGO_FC_FONT_MAP(fontMap_.get()));
  }
  return customFaces_.emplace(font.name, face).first->second;
}

}  // namespace rendering
