#pragma once

#include <cairo.h>

#include <memory>

namespace rendering {

struct DestroySurface {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using SurfaceHandle = std::unique_ptr<cairo_surface_t, DestroySurface>;

struct DestroyCairo {
  void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};
using CairoHandle = std::unique_ptr<cairo_t, DestroyCairo>;

}  // namespace rendering
