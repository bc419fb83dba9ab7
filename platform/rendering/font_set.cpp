#include "rendering/font_set.hpp"

#include <pango/pangofc-fontmap.h>

#include <array>

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

}  // namespace

FontSet::FontSet(FontFolders folders) : fontconfig_(makeFontconfig(folders)) {
  // Otherwise Pango reads the system's whole configuration, in a thread of its own, for nothing.
  if (folders == FontFolders::systemFont) FcConfigSetCurrent(fontconfig_.get());
  fontMap_.reset(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT));
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

FontDescription FontSet::description(const Font& font) {
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

const FontFace& FontSet::customFace(const Font& font) {
  const auto known = customFaces_.find(font.name);
  if (known != customFaces_.end()) return known->second;
  FontFace face;
  if (const auto files = registeredFont(font.name)) {
    // The family is asked for by name, so the files have to be among those that fontconfig knows.
    if (!files->italic.empty()) addFontFile(fontconfig_.get(), files->italic);
    face = addFontFile(fontconfig_.get(), files->upright);
    pango_fc_font_map_config_changed(PANGO_FC_FONT_MAP(fontMap_.get()));
  }
  return customFaces_.emplace(font.name, face).first->second;
}

}  // namespace rendering
