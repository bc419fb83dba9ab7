#pragma once

#include <pango/pangocairo.h>

namespace rendering {

/// Draws a line from the current point on in the rounded design: the letters of the system font with a round pen of
/// that width, in points, around their outlines. Letters that another font lends have no lighter weight that would make
/// up for the pen, and emoji no outlines: they are drawn as they are.
void drawRounded(cairo_t* cairo, PangoLayoutLine* line, double pen);

}  // namespace rendering
