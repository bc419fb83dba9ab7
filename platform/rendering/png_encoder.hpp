#pragma once

#include <cairo.h>

#include <string>

namespace rendering {

/// An ARGB surface as a PNG file. Level 1 without filters is both the fastest and the smallest on pictures as flat as
/// these; a picture without a transparent pixel is written without alpha.
std::string encodePNG(cairo_surface_t* surface);

}  // namespace rendering
