#include "rendering/glyph_drawing.hpp"

#include <memory>
#include <vector>

#include "rendering/typeface.hpp"

namespace rendering {
namespace {

using swiftui::Point;
using CairoPath = std::unique_ptr<cairo_path_t, decltype([](cairo_path_t* path) { cairo_path_destroy(path); })>;
using CairoPattern =
    std::unique_ptr<cairo_pattern_t, decltype([](cairo_pattern_t* pattern) { cairo_pattern_destroy(pattern); })>;
using FontOptions =
    std::unique_ptr<cairo_font_options_t,
                    decltype([](cairo_font_options_t* options) { cairo_font_options_destroy(options); })>;

/// The pen around the outlines of the rounded design, in em: about half of what separates two weights.
constexpr double roundedPen = 0.022;

/// Unhinted, so that letters are as wide at every scale.
const cairo_font_options_t* unhinted() {
  static const FontOptions options = [] {
    FontOptions made(cairo_font_options_create());
    cairo_font_options_set_hint_style(made.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(made.get(), CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(made.get(), CAIRO_ANTIALIAS_GRAY);
    return made;
  }();
  return options.get();
}

/// A run's glyphs where they are drawn, and how they belong to the text: PDF files have that, too.
struct PlacedRun {
  std::vector<cairo_glyph_t> glyphs = {};
  std::vector<cairo_text_cluster_t> clusters = {};
  std::size_t start = 0;  ///< of the text that it shows, bytes
  std::size_t end = 0;
};

/// Places a run at a point of the baseline, which is moved to its other end.
PlacedRun place(const GlyphRun& run, const GlyphStyle& style, Point& pen) {
  PlacedRun placed;
  for (const GlyphCluster& cluster : run.clusters) {
    const double spacing = cluster.isSpaced ? style.spacing : 0;
    // Spacing stands behind a letter: to its left where writing runs to the left.
    const double left = pen.x + (run.runsToTheLeft ? spacing : 0);
    for (std::size_t i = 0; i < cluster.glyphCount; ++i) {
      const ShapedGlyph& glyph = run.glyphs[cluster.firstGlyph + i];
      placed.glyphs.push_back(
          {.index = glyph.index, .x = left + glyph.x * style.font.size, .y = pen.y + glyph.y * style.font.size});
    }
    placed.clusters.push_back({.num_bytes = static_cast<int>(cluster.end - cluster.start),
                               .num_glyphs = static_cast<int>(cluster.glyphCount)});
    pen.x += cluster.advance * style.font.size + spacing;
  }
  if (!run.clusters.empty()) {
    placed.start = std::min(run.clusters.front().start, run.clusters.back().start);
    placed.end = std::max(run.clusters.front().end, run.clusters.back().end);
  }
  return placed;
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

void drawRounded(cairo_t* cairo, const PlacedRun& run, double size) {
  cairo_new_path(cairo);
  cairo_glyph_path(cairo, run.glyphs.data(), static_cast<int>(run.glyphs.size()));
  paintRounded(cairo, roundedPen * size);
  cairo_new_path(cairo);
}

void drawPlain(cairo_t* cairo, const PlacedRun& run, bool runsToTheLeft, const std::string& line) {
  const auto glyphCount = static_cast<int>(run.glyphs.size());
  if (cairo_surface_has_show_text_glyphs(cairo_get_target(cairo)) == 0) {
    cairo_show_glyphs(cairo, run.glyphs.data(), glyphCount);
    return;
  }
  cairo_show_text_glyphs(cairo, line.data() + run.start, static_cast<int>(run.end - run.start), run.glyphs.data(),
                         glyphCount, run.clusters.data(), static_cast<int>(run.clusters.size()),
                         runsToTheLeft ? CAIRO_TEXT_CLUSTER_FLAG_BACKWARD : cairo_text_cluster_flags_t{});
}

/// Where a machine has no font, letters are boxes.
void drawBoxes(cairo_t* cairo, const GlyphRun& run, const GlyphStyle& style, Point pen) {
  constexpr double side = 0.4;  // em
  const double size = side * style.font.size;
  cairo_new_path(cairo);
  for (const GlyphCluster& cluster : run.clusters) {
    const double advance = cluster.advance * style.font.size + style.spacing;
    cairo_rectangle(cairo, pen.x + (advance - size) / 2, pen.y - size, size, size);
    pen.x += advance;
  }
  cairo_set_line_width(cairo, size / 8);
  cairo_stroke(cairo);
}

}  // namespace

void drawGlyphs(cairo_t* cairo, const ShapedText& text, const std::string& line, const GlyphStyle& style,
                Point origin) {
  Point pen = origin;
  for (const GlyphRun& run : text.runs) {
    const Point start = pen;
    const PlacedRun placed = place(run, style, pen);
    cairo_font_face_t* face = run.typeface != nullptr ? run.typeface->pen() : nullptr;
    if (face == nullptr) {
      drawBoxes(cairo, run, style, start);
      continue;
    }
    cairo_set_font_face(cairo, face);
    cairo_set_font_size(cairo, style.font.size);
    cairo_set_font_options(cairo, unhinted());
    if (style.font.design == swiftui::FontDesign::rounded && run.typeface == text.own) {
      drawRounded(cairo, placed, style.font.size);
    } else {
      drawPlain(cairo, placed, run.runsToTheLeft, line);
    }
  }
}

}  // namespace rendering
