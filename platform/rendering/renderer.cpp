#include "rendering/renderer.hpp"

#include <cmath>

#include "foundation/fatal_error.hpp"
#include "rendering/asset_catalog.hpp"
#include "rendering/cairo_handles.hpp"
#include "rendering/cairo_player.hpp"
#include "rendering/png_encoder.hpp"
#include "rendering/text_engine.hpp"

namespace rendering {
namespace {

/// Cuts what is painted to the widget's outline.
void cutToOutline(cairo_t* cairo, const Scene& scene) {
  cairo_new_path(cairo);
  addRoundedRectangle(cairo, {.origin = {}, .size = scene.size}, scene.cornerRadius);
  cairo_set_operator(cairo, CAIRO_OPERATOR_DEST_IN);
  cairo_set_source_rgb(cairo, 0, 0, 0);
  cairo_fill(cairo);
}

}  // namespace

Renderer::Renderer(const std::filesystem::path& resources)
    : text_(std::make_unique<TextEngine>()), assets_(std::make_unique<AssetCatalog>(resources)) {}
Renderer::~Renderer() = default;

swiftui::TextLayout Renderer::layoutText(const std::string& content, const swiftui::TextStyle& style,
                                         swiftui::ProposedSize proposal) const {
  return text_->layoutText(content, style, proposal);
}

swiftui::FontMetrics Renderer::fontMetrics(const swiftui::Font& font) const {
  return text_->fontMetrics(font);
}

swiftui::Size Renderer::imageSize(const swiftui::ImageElement& image) const {
  return assets_->size({.name = image.name, .isSymbol = image.isSymbol, .colorScheme = image.paint.colorScheme});
}

std::string Renderer::png(const Scene& scene, double scale) const {
  const auto pixels = [&](double points) { return static_cast<int>(std::lround(points * scale)); };
  const SurfaceHandle surface(
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels(scene.size.width), pixels(scene.size.height)));
  const CairoHandle cairo(cairo_create(surface.get()));
  cairo_scale(cairo.get(), scale, scale);
  CairoPlayer(cairo.get(), scale, *text_, *assets_).play(scene.drawn);
  if (scene.cornerRadius > 0) cutToOutline(cairo.get(), scene);
  if (cairo_status(cairo.get()) != CAIRO_STATUS_SUCCESS) {
    foundation::fatalError(std::string("drawing failed: ") + cairo_status_to_string(cairo_status(cairo.get())));
  }
  return encodePNG(surface.get());
}

}  // namespace rendering
