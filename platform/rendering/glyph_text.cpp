#include "rendering/glyph_text.hpp"

#include <pango/pangofc-fontmap.h>

#include <array>
#include <cmath>

#include "rendering/font_registry.hpp"

namespace rendering {
namespace {

using swiftui::Font;
using swiftui::FontDesign;

/// Stands in for the platform's system font: the closest free one in width, weight by weight.
constexpr auto systemFamily = "Inter";

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

}  // namespace

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

GObjectHandle<PangoLayout> GlyphText::paragraph(const std::string& content, const GlyphStyle& style) const {
  pango_context_set_base_dir(context_.get(), style.direction == swiftui::LayoutDirection::rightToLeft
                                                 ? PANGO_DIRECTION_WEAK_RTL
                                                 : PANGO_DIRECTION_WEAK_LTR);
  GObjectHandle<PangoLayout> layout(pango_layout_new(context_.get()));
  pango_layout_set_text(layout.get(), content.c_str(), static_cast<int>(content.size()));
  pango_layout_set_font_description(layout.get(), description(style.font).get());
  if (style.spacing != 0) {
    PangoAttrList* attributes = pango_attr_list_new();
    pango_attr_list_insert(attributes, pango_attr_letter_spacing_new(pangoUnits(style.spacing)));
    pango_layout_set_attributes(layout.get(), attributes);
    pango_attr_list_unref(attributes);
  }
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
  std::string family = systemFamily;
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
