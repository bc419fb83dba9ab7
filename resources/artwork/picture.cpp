#include "picture.hpp"

#include <cairo.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

namespace artwork {

namespace {

std::uint32_t level(double value) {
  return static_cast<std::uint32_t>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
}

/// Cairo's pixel: premultiplied, alpha in the highest byte.
std::uint32_t packed(const Colour& colour) {
  const double alpha = static_cast<double>(level(colour.alpha)) / 255;
  return level(colour.alpha) << 24 | level(colour.red * alpha) << 16 | level(colour.green * alpha) << 8 |
         level(colour.blue * alpha);
}

}  // namespace

Colour mix(const Colour& from, const Colour& to, double share) {
  return {.red = std::lerp(from.red, to.red, share),
          .green = std::lerp(from.green, to.green, share),
          .blue = std::lerp(from.blue, to.blue, share),
          .alpha = std::lerp(from.alpha, to.alpha, share)};
}

Colour colourFrom(std::string_view hex) {
  unsigned value = 0;
  const bool shaped = hex.size() == 7 && hex.front() == '#';
  if (!shaped || std::from_chars(hex.data() + 1, hex.data() + 7, value, 16).ptr != hex.data() + 7) {
    throw std::invalid_argument("not a colour: " + std::string(hex));
  }
  const auto channel = [&](unsigned shift) { return static_cast<double>(value >> shift & 0xFFU) / 255; };
  return {.red = channel(16), .green = channel(8), .blue = channel(0)};
}

Picture::Picture(int width, int height)
    : width_(width), height_(height), pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

void Picture::writePng(const std::filesystem::path& file, bool opaque) const {
  const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface(
      cairo_image_surface_create(opaque ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32, width_, height_),
      &cairo_surface_destroy);
  unsigned char* bytes = cairo_image_surface_get_data(surface.get());
  if (bytes == nullptr) throw std::runtime_error("no surface for " + file.string());
  const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface.get());
  for (int y = 0; y < height_; ++y) {
    auto* row = reinterpret_cast<std::uint32_t*>(bytes + y * stride);
    for (int x = 0; x < width_; ++x) row[x] = packed(at(x, y));
  }
  cairo_surface_mark_dirty(surface.get());
  const cairo_status_t status = cairo_surface_write_to_png(surface.get(), file.c_str());
  if (status != CAIRO_STATUS_SUCCESS) {
    throw std::runtime_error(file.string() + ": " + cairo_status_to_string(status));
  }
}

}  // namespace artwork
