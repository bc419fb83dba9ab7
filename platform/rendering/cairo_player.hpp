#pragma once

#include <cairo.h>

#include "rendering/asset_catalog.hpp"
#include "rendering/display_list.hpp"
#include "rendering/text_engine.hpp"

namespace rendering {

/// Paints display lists with Cairo.
class CairoPlayer {
 public:
  /// `scale` is the number of pixels to the point: frames are moved to whole pixels when they are painted.
  CairoPlayer(cairo_t* cairo, double scale, const TextEngine& text, const AssetCatalog& assets)
      : cairo_(cairo), scale_(scale), text_(text), assets_(assets) {}

  void play(const DisplayList& list) const;

 private:
  void paint(const DrawText& draw) const;
  void paint(const DrawImage& draw) const;
  void paint(const DrawShape& draw) const;

  double snapped(double points) const;
  swiftui::Rect snapped(swiftui::Rect frame) const;

  cairo_t* cairo_;
  double scale_;
  const TextEngine& text_;
  const AssetCatalog& assets_;
};

/// Appends a rectangle with round corners to the path; a radius too large is cut to half the shorter side.
void addRoundedRectangle(cairo_t* cairo, const swiftui::Rect& frame, double radius);

}  // namespace rendering
