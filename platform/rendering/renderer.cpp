#include "rendering/renderer.hpp"

#include <cairo-pdf.h>
#include <cairo-svg.h>

#include <algorithm>
#include <cmath>

#include "foundation/fatal_error.hpp"
#include "foundation/iso8601.hpp"
#include "rendering/asset_catalog.hpp"
#include "rendering/cairo_handles.hpp"
#include "rendering/cairo_player.hpp"
#include "rendering/png_encoder.hpp"
#include "rendering/text_engine.hpp"

namespace rendering {
namespace {

/// Appends what a surface writes to a text.
cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) {
  static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
  return CAIRO_STATUS_SUCCESS;
}

void check(cairo_status_t status) {
  if (status == CAIRO_STATUS_SUCCESS) return;
  foundation::fatalError(std::string("drawing failed: ") + cairo_status_to_string(status));
}

/// Paints a scene where the origin is, cut to the widget's outline.
void paint(const Scene& scene, cairo_t* cairo, const CairoPlayer& player) {
  if (scene.cornerRadius > 0) {
    cairo_new_path(cairo);
    addRoundedRectangle(cairo, {.origin = {}, .size = scene.size}, scene.cornerRadius);
    cairo_clip(cairo);
  }
  player.play(scene.drawn);
}

/// Clears what lies outside of the widget's round corners. Pixels that stand for nothing else can be cut once at the
/// end, which takes a fraction of the time of cutting each of the drawings.
void clearCorners(const Scene& scene, cairo_t* cairo) {
  const auto [width, height] = scene.size;
  const double radius = std::min({scene.cornerRadius, width / 2, height / 2});
  constexpr double beyond = 1;  // the edge may lie within a pixel
  cairo_save(cairo);
  cairo_set_operator(cairo, CAIRO_OPERATOR_CLEAR);
  cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_EVEN_ODD);
  for (const swiftui::Point corner : {swiftui::Point{.x = -beyond, .y = -beyond},
                                      {.x = width - radius, .y = -beyond},
                                      {.x = -beyond, .y = height - radius},
                                      {.x = width - radius, .y = height - radius}}) {
    cairo_save(cairo);
    cairo_rectangle(cairo, corner.x, corner.y, radius + beyond, radius + beyond);
    cairo_clip_preserve(cairo);
    addRoundedRectangle(cairo, {.origin = {}, .size = scene.size}, radius);
    cairo_fill(cairo);
    cairo_restore(cairo);
  }
  cairo_restore(cairo);
}

bool isOneWidget(const Composition& composition) {
  return composition.ground.alpha <= 0 && composition.tiles.size() == 1 &&
         composition.tiles.front().origin == swiftui::Point{} &&
         composition.tiles.front().scene.size == composition.size;
}

void paint(const Composition& composition, cairo_surface_t* surface, double scale, const TextEngine& text,
           const AssetCatalog& assets) {
  const CairoHandle cairo(cairo_create(surface));
  cairo_scale(cairo.get(), scale, scale);
  if (const uikit::RGBA& ground = composition.ground; ground.alpha > 0) {
    cairo_set_source_rgba(cairo.get(), ground.red, ground.green, ground.blue, ground.alpha);
    cairo_paint(cairo.get());
  }
  const CairoPlayer player(cairo.get(), scale, text, assets);
  if (cairo_surface_get_type(surface) == CAIRO_SURFACE_TYPE_IMAGE && isOneWidget(composition)) {
    const Scene& scene = composition.tiles.front().scene;
    player.play(scene.drawn);
    if (scene.cornerRadius > 0) clearCorners(scene, cairo.get());
    return check(cairo_status(cairo.get()));
  }
  for (const Tile& tile : composition.tiles) {
    cairo_save(cairo.get());
    cairo_translate(cairo.get(), tile.origin.x, tile.origin.y);
    paint(tile.scene, cairo.get(), player);
    cairo_restore(cairo.get());
  }
  check(cairo_status(cairo.get()));
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
  return assets_->size({.name = image.name,
                        .isSymbol = image.isSymbol,
                        .colorScheme = image.paint.colorScheme,
                        .folder = image.options.folder});
}

std::string Renderer::png(const Composition& composition, double scale) const {
  const auto pixels = [&](double points) { return static_cast<int>(std::lround(points * scale)); };
  const SurfaceHandle surface(
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels(composition.size.width), pixels(composition.size.height)));
  paint(composition, surface.get(), scale, *text_, *assets_);
  return encodePNG(surface.get());
}

std::string Renderer::svg(const Composition& composition) const {
  std::string bytes;
  {
    const SurfaceHandle surface(
        cairo_svg_surface_create_for_stream(append, &bytes, composition.size.width, composition.size.height));
    cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
    paint(composition, surface.get(), 1, *text_, *assets_);
    cairo_surface_finish(surface.get());
    check(cairo_surface_status(surface.get()));
  }
  return bytes;
}

std::string Renderer::pdf(const Composition& composition, foundation::Date created) const {
  std::string bytes;
  {
    const SurfaceHandle surface(
        cairo_pdf_surface_create_for_stream(append, &bytes, composition.size.width, composition.size.height));
    const std::string moment = foundation::formatISO8601(created);
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATE_DATE, moment.c_str());
    paint(composition, surface.get(), 1, *text_, *assets_);
    cairo_surface_finish(surface.get());
    check(cairo_surface_status(surface.get()));
  }
  return bytes;
}

}  // namespace rendering
