#pragma once

#include <cairo.h>

#include <string>

#include "rendering/glyph_style.hpp"
#include "rendering/shaped_text.hpp"
#include "swiftui/geometry.hpp"

namespace rendering {

/// Draws a line's glyphs with the source that is set; its left edge and baseline stand at `origin`. In the rounded
/// design the letters have a round pen around their outlines. Letters that another font lends have no lighter weight
/// that would make up for the pen, and emoji no outlines: they are drawn as they are.
void drawGlyphs(cairo_t* cairo, const ShapedText& text, const std::string& line, const GlyphStyle& style,
                swiftui::Point origin);

}  // namespace rendering
