#include "rendering/rounded_text.hpp"

#include <memory>
#include <string_view>

#include "rendering/glyph_text.hpp"

namespace rendering {
namespace {

using CairoPath = std::unique_ptr<cairo_path_t, decltype([](cairo_path_t* path) { cairo_path_destroy(path); })>;
using CairoPattern =
    std::unique_ptr<cairo_pattern_t, decltype([](cairo_pattern_t* pattern) { cairo_pattern_destroy(pattern); })>;

bool isOfSystemFont(const PangoLayoutRun& run) {
  // Where a machine has no font at all, letters are boxes.
  const FontDescription description(pango_font_describe(run.item->analysis.font));
  const char* const family = description ? pango_font_description_get_family(description.get()) : nullptr;
  return family != nullptr && family == systemFamily;
}

/// Fills and outlines the path in one stencil first: where the two overlap a translucent colour must not be seen twice.
void paintRounded(cairo_t* cairo, double pen) {
  cairo_save(cairo);
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  cairo_fill_extents(cairo, &left, &top, &right, &bottom);
  const CairoPath outlines(cairo_copy_path(cairo));
  cairo_new_path(cairo);
  cairo_rectangle(cairo, left - pen, top - pen, right - left + 2 * pen, bottom - top + 2 * pen);
  cairo_clip(cairo);
  cairo_push_group_with_content(cairo, CAIRO_CONTENT_ALPHA);
  cairo_append_path(cairo, outlines.get());
  cairo_set_source_rgb(cairo, 0, 0, 0);
  cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
  cairo_set_line_width(cairo, pen);
  cairo_fill_preserve(cairo);
  cairo_stroke(cairo);
  const CairoPattern stencil(cairo_pop_group(cairo));
  cairo_mask(cairo, stencil.get());
  cairo_restore(cairo);
}

}  // namespace

void drawRounded(cairo_t* cairo, PangoLayoutLine* line, double pen) {
  double x = 0;
  double baseline = 0;
  cairo_get_current_point(cairo, &x, &baseline);
  for (GSList* item = line->runs; item != nullptr; item = item->next) {
    const PangoLayoutRun& run = *static_cast<PangoLayoutRun*>(item->data);
    x += pango_units_to_double(run.start_x_offset);
    cairo_move_to(cairo, x, baseline - pango_units_to_double(run.y_offset));
    if (isOfSystemFont(run)) {
      pango_cairo_glyph_string_path(cairo, run.item->analysis.font, run.glyphs);
      paintRounded(cairo, pen);
    } else {
      pango_cairo_show_glyph_string(cairo, run.item->analysis.font, run.glyphs);
    }
    cairo_new_path(cairo);
    x += pango_units_to_double(pango_glyph_string_get_width(run.glyphs) + run.end_x_offset);
  }
}

}  // namespace rendering
