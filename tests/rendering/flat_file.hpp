#pragma once

#include "pixels.hpp"
#include "rendering/asset_catalog.hpp"
#include "rendering/cairo_handles.hpp"
#include "rendering/png_encoder.hpp"

namespace rendering {

/// A PNG file of one colour.
inline std::string flatFile(int width, int height, uikit::RGBA color) {
  const SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  const CairoHandle cairo(cairo_create(surface.get()));
  cairo_set_source_rgba(cairo.get(), color.red, color.green, color.blue, color.alpha);
  cairo_paint(cairo.get());
  return encodePNG(surface.get());
}

/// What a catalogue draws on a clear ground of 20 by 20 pixels.
inline Pixels drawn(const AssetCatalog& catalog, const AssetKey& key, const Drawing& drawing) {
  const SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 20, 20));
  const CairoHandle cairo(cairo_create(surface.get()));
  catalog.draw(cairo.get(), key, drawing);
  EXPECT_EQ(cairo_status(cairo.get()), CAIRO_STATUS_SUCCESS);
  return decoded(encodePNG(surface.get()));
}

}  // namespace rendering
