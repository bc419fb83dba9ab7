#include "rendering/picture.hpp"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "rendering/cairo_handles.hpp"
#include "rendering/svg_library.hpp"

namespace rendering {
namespace {

constexpr int longestSide = 2048;  ///< pixels of a PNG, points of an SVG

bool isUsable(swiftui::Size size) {
  const auto isLength = [](double length) { return length > 0 && length <= longestSide; };
  return isLength(size.width) && isLength(size.height);
}

void paintGroup(cairo_t* cairo, double opacity, auto&& paint) {
  if (opacity >= 1) return paint();
  cairo_push_group(cairo);
  paint();
  cairo_pop_group_to_source(cairo);
  cairo_paint_with_alpha(cairo, opacity);
}

void fillStencil(cairo_t* cairo, uikit::RGBA color, double opacity, auto&& paintMask) {
  // The mask decides where, the colour what; both stay out of the picture until they are joined. SVG files put a mask
  // in its place only where nothing is moved or scaled around it.
  cairo_matrix_t matrix;
  cairo_get_matrix(cairo, &matrix);
  cairo_identity_matrix(cairo);
  cairo_push_group_with_content(cairo, CAIRO_CONTENT_ALPHA);
  cairo_set_matrix(cairo, &matrix);
  paintMask();
  cairo_identity_matrix(cairo);
  cairo_pattern_t* mask = cairo_pop_group(cairo);
  cairo_set_source_rgba(cairo, color.red, color.green, color.blue, color.alpha * opacity);
  cairo_mask(cairo, mask);
  cairo_pattern_destroy(mask);
  cairo_set_matrix(cairo, &matrix);
}

/// Maps a picture of that size onto the frame, outside of which nothing is drawn.
void enter(cairo_t* cairo, const swiftui::Rect& frame, swiftui::Size own) {
  cairo_rectangle(cairo, frame.origin.x, frame.origin.y, frame.size.width, frame.size.height);
  cairo_clip(cairo);
  cairo_translate(cairo, frame.origin.x, frame.origin.y);
  cairo_scale(cairo, frame.size.width / own.width, frame.size.height / own.height);
}

class Bitmap final : public Picture {
 public:
  Bitmap(SurfaceHandle surface, int density) : surface_(std::move(surface)), density_(density) {}

  swiftui::Size size() const override {
    return {.width = static_cast<double>(cairo_image_surface_get_width(surface_.get())) / density_,
            .height = static_cast<double>(cairo_image_surface_get_height(surface_.get())) / density_};
  }

  std::size_t cost() const override {
    return static_cast<std::size_t>(cairo_image_surface_get_stride(surface_.get())) *
           static_cast<std::size_t>(cairo_image_surface_get_height(surface_.get()));
  }

  void draw(cairo_t* cairo, const Drawing& drawing) const override {
    const auto paint = [&](double opacity) {
      cairo_save(cairo);
      enter(cairo, drawing.frame, size());
      cairo_scale(cairo, 1.0 / density_, 1.0 / density_);
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

class Outlines final : public Picture {
 public:
  Outlines(SVGHandle handle, swiftui::Size size, std::size_t cost)
      : handle_(std::move(handle)), size_(size), cost_(cost) {}

  swiftui::Size size() const override { return size_; }
  std::size_t cost() const override { return cost_; }

  void draw(cairo_t* cairo, const Drawing& drawing) const override {
    const auto paint = [&] {
      cairo_save(cairo);
      enter(cairo, drawing.frame, size_);
      render(cairo);
      cairo_restore(cairo);
    };
    if (drawing.tint) {
      fillStencil(cairo, *drawing.tint, drawing.opacity, paint);
    } else {
      paintGroup(cairo, drawing.opacity, paint);
    }
  }

  bool render(cairo_t* cairo) const {
    const RsvgRectangle viewport{0, 0, size_.width, size_.height};
    return SVGLibrary::open()->renderDocument(handle_.get(), cairo, &viewport, nullptr) != FALSE;
  }

 private:
  SVGHandle handle_;
  swiftui::Size size_;
  std::size_t cost_;
};

/// The size in the head of a PNG file, in pixels: two numbers of four bytes, the highest first.
std::optional<swiftui::Size> sizeOfPNG(std::string_view bytes) {
  constexpr std::string_view head("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
  if (!bytes.starts_with(head) || bytes.size() < head.size() + 8) return std::nullopt;
  const auto number = [&](std::size_t at) {
    double value = 0;
    for (const char byte : bytes.substr(at, 4)) value = value * 256 + static_cast<unsigned char>(byte);
    return value;
  };
  return swiftui::Size{.width = number(head.size()), .height = number(head.size() + 4)};
}

/// Hands the next bytes to Cairo.
cairo_status_t take(void* rest, unsigned char* to, unsigned int length) {
  auto& bytes = *static_cast<std::string_view*>(rest);
  if (bytes.size() < length) return CAIRO_STATUS_READ_ERROR;
  std::memcpy(to, bytes.data(), length);
  bytes.remove_prefix(length);
  return CAIRO_STATUS_SUCCESS;
}

swiftui::Size sizeOfSVG(const SVGLibrary& library, RsvgHandle* handle) {
  swiftui::Size size;
  if (library.intrinsicSize(handle, &size.width, &size.height) != FALSE) return size;
  gboolean hasViewBox = FALSE;
  RsvgRectangle viewBox = {};
  library.intrinsicDimensions(handle, nullptr, nullptr, nullptr, nullptr, &hasViewBox, &viewBox);
  return hasViewBox != FALSE ? swiftui::Size{.width = viewBox.width, .height = viewBox.height} : swiftui::Size{};
}

/// Whether it can be drawn: an outline that fails does so at any size, and here it spoils no picture.
bool isDrawable(const Outlines& outlines) {
  constexpr int side = 64;
  const SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, side, side));
  const CairoHandle cairo(cairo_create(surface.get()));
  enter(cairo.get(), {.origin = {}, .size = {side, side}}, outlines.size());
  return outlines.render(cairo.get()) && cairo_status(cairo.get()) == CAIRO_STATUS_SUCCESS;
}

}  // namespace

std::unique_ptr<Picture> pictureOfPNG(const std::string& bytes, int density) {
  const auto size = sizeOfPNG(bytes);
  if (!size || !isUsable(*size)) return nullptr;
  std::string_view rest = bytes;
  SurfaceHandle surface(cairo_image_surface_create_from_png_stream(take, &rest));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
  return std::make_unique<Bitmap>(std::move(surface), density);
}

std::unique_ptr<Picture> pictureOfSVG(const std::string& bytes) {
  const SVGLibrary* const library = SVGLibrary::open();
  if (library == nullptr) return nullptr;
  // Made from bytes, a picture has no place that it could refer to other files from.
  SVGHandle handle(library->newFromData(reinterpret_cast<const guint8*>(bytes.data()), bytes.size(), nullptr));
  if (!handle) return nullptr;
  library->setDPI(handle.get(), 96);
  const swiftui::Size size = sizeOfSVG(*library, handle.get());
  if (!isUsable(size)) return nullptr;
  constexpr std::size_t growth = 16;  // what is read takes several times the room of its text
  auto outlines = std::make_unique<Outlines>(std::move(handle), size, growth * bytes.size());
  if (!isDrawable(*outlines)) return nullptr;
  return outlines;
}

}  // namespace rendering
