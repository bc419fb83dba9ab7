#include "rendering/asset_catalog.hpp"

#include <librsvg/rsvg.h>

#include "rendering/cairo_handles.hpp"
#include "rendering/gobject.hpp"

namespace rendering {
namespace {

constexpr int dense = 3;  ///< pixels per point of files named "@3x"

void fillStencil(cairo_t* cairo, uikit::RGBA color, double opacity, auto&& paintMask) {
  // The mask decides where, the colour what; both stay out of the picture until they are joined.
  cairo_push_group_with_content(cairo, CAIRO_CONTENT_ALPHA);
  paintMask();
  cairo_pattern_t* mask = cairo_pop_group(cairo);
  cairo_set_source_rgba(cairo, color.red, color.green, color.blue, color.alpha * opacity);
  cairo_mask(cairo, mask);
  cairo_pattern_destroy(mask);
}

}  // namespace

class AssetCatalog::Asset {
 public:
  Asset() = default;
  Asset(const Asset&) = delete;
  Asset& operator=(const Asset&) = delete;
  virtual ~Asset() = default;
  virtual swiftui::Size size() const = 0;
  virtual void draw(cairo_t* cairo, const Drawing& drawing) const = 0;
};

/// A picture of pixels.
class AssetCatalog::Bitmap final : public Asset {
 public:
  Bitmap(SurfaceHandle surface, int density) : surface_(std::move(surface)), density_(density) {}

  swiftui::Size size() const override {
    return {.width = static_cast<double>(cairo_image_surface_get_width(surface_.get())) / density_,
            .height = static_cast<double>(cairo_image_surface_get_height(surface_.get())) / density_};
  }

  void draw(cairo_t* cairo, const Drawing& drawing) const override {
    const swiftui::Size own = size();
    if (own.width <= 0 || own.height <= 0) return;
    const auto paint = [&](double opacity) {
      const swiftui::Rect& frame = drawing.frame;
      cairo_save(cairo);
      cairo_rectangle(cairo, frame.origin.x, frame.origin.y, frame.size.width, frame.size.height);
      cairo_clip(cairo);
      cairo_translate(cairo, frame.origin.x, frame.origin.y);
      cairo_scale(cairo, frame.size.width / own.width / density_, frame.size.height / own.height / density_);
      cairo_set_source_surface(cairo, surface_.get(), 0, 0);
      // Stretched pixels at the edge must not fade into the nothing around the picture. Files of outlines keep the
      // picture as it is and leave the stretching to the viewer.
      const bool isPixels = cairo_surface_get_type(cairo_get_target(cairo)) == CAIRO_SURFACE_TYPE_IMAGE;
      if (isPixels) cairo_pattern_set_extend(cairo_get_source(cairo), CAIRO_EXTEND_PAD);
      cairo_paint_with_alpha(cairo, opacity);
      cairo_restore(cairo);
    };
    if (drawing.tint) {
      fillStencil(cairo, *drawing.tint, drawing.opacity, [&] { paint(1); });
    } else {
      paint(drawing.opacity);
    }
  }

 private:
  SurfaceHandle surface_;
  int density_;
};

/// A picture of outlines.
class AssetCatalog::Symbol final : public Asset {
 public:
  explicit Symbol(GObjectHandle<RsvgHandle> handle) : handle_(std::move(handle)) {
    gdouble width = 0;
    gdouble height = 0;
    if (rsvg_handle_get_intrinsic_size_in_pixels(handle_.get(), &width, &height) != FALSE) size_ = {width, height};
  }

  swiftui::Size size() const override { return size_; }

  void draw(cairo_t* cairo, const Drawing& drawing) const override {
    if (size_.width <= 0 || size_.height <= 0) return;
    const swiftui::Rect& frame = drawing.frame;
    fillStencil(cairo, drawing.tint.value_or(uikit::RGBA{}), drawing.opacity, [&] {
      cairo_translate(cairo, frame.origin.x, frame.origin.y);
      cairo_scale(cairo, frame.size.width / size_.width, frame.size.height / size_.height);
      const RsvgRectangle viewport{0, 0, size_.width, size_.height};
      rsvg_handle_render_document(handle_.get(), cairo, &viewport, nullptr);
    });
  }

 private:
  GObjectHandle<RsvgHandle> handle_;
  swiftui::Size size_ = {};
};

AssetCatalog::AssetCatalog(std::filesystem::path folder) : folder_(std::move(folder)) {}
AssetCatalog::~AssetCatalog() = default;

swiftui::Size AssetCatalog::size(const AssetKey& key) const {
  const Asset* asset = find(key);
  return asset != nullptr ? asset->size() : swiftui::Size{};
}

void AssetCatalog::draw(cairo_t* cairo, const AssetKey& key, const Drawing& drawing) const {
  const Asset* asset = find(key);
  if (asset == nullptr || drawing.frame.size.width <= 0 || drawing.frame.size.height <= 0) return;
  cairo_save(cairo);
  asset->draw(cairo, drawing);
  cairo_restore(cairo);
}

const AssetCatalog::Asset* AssetCatalog::find(const AssetKey& key) const {
  auto known = assets_.find(key);
  if (known == assets_.end()) known = assets_.emplace(key, load(key)).first;
  return known->second.get();
}

std::unique_ptr<AssetCatalog::Asset> AssetCatalog::load(const AssetKey& key) const {
  // A name is a name and no path.
  if (key.name.empty() || key.name.find('/') != std::string::npos || key.name.starts_with('.')) return nullptr;
  if (key.isSymbol) {
    const auto file = folder_ / "symbols" / (key.name + ".svg");
    GObjectHandle<RsvgHandle> handle(rsvg_handle_new_from_file(file.c_str(), nullptr));
    if (!handle) return nullptr;
    rsvg_handle_set_dpi(handle.get(), 96);
    return std::make_unique<Symbol>(std::move(handle));
  }
  const auto bitmap = [&](const std::string& suffix, int density) -> std::unique_ptr<Asset> {
    const auto file = folder_ / "images" / (key.name + suffix + ".png");
    SurfaceHandle surface(cairo_image_surface_create_from_png(file.c_str()));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
    return std::make_unique<Bitmap>(std::move(surface), density);
  };
  const bool isDark = key.colorScheme == uikit::ColorScheme::dark;
  for (const std::string variant : {"~dark", ""}) {
    if (variant == "~dark" && !isDark) continue;
    if (auto asset = bitmap(variant + "@3x", dense)) return asset;
    if (auto asset = bitmap(variant, 1)) return asset;
  }
  return nullptr;
}

}  // namespace rendering
