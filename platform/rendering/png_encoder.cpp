#include "rendering/png_encoder.hpp"

#include <png.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "foundation/fatal_error.hpp"

namespace rendering {
namespace {

/// A cairo surface's pixels: native-endian 32-bit words, alpha highest, colours multiplied by alpha.
struct Pixels {
  const unsigned char* data;
  std::size_t stride;
  std::uint32_t width;
  std::uint32_t height;

  std::uint32_t at(std::uint32_t x, std::uint32_t y) const {
    std::uint32_t word = 0;
    std::memcpy(&word, data + y * stride + x * sizeof word, sizeof word);
    return word;
  }

  bool isOpaque() const {
    for (std::uint32_t y = 0; y < height; ++y) {
      for (std::uint32_t x = 0; x < width; ++x) {
        if (at(x, y) >> 24 != 0xFF) return false;
      }
    }
    return true;
  }
};

void writeRow(const Pixels& pixels, std::uint32_t y, bool hasAlpha, png_bytep row) {
  for (std::uint32_t x = 0; x < pixels.width; ++x) {
    const std::uint32_t word = pixels.at(x, y);
    const std::uint32_t alpha = word >> 24;
    const auto part = [&](int shift) {
      const std::uint32_t value = word >> shift & 0xFF;
      if (alpha == 0xFF || alpha == 0) return static_cast<png_byte>(value);
      return static_cast<png_byte>((value * 255 + alpha / 2) / alpha);
    };
    *row++ = part(16);
    *row++ = part(8);
    *row++ = part(0);
    if (hasAlpha) *row++ = static_cast<png_byte>(alpha);
  }
}

/// libpng's writer; errors of it are programming errors here, for nothing but memory is written to.
class Writer {
 public:
  explicit Writer(std::string& bytes)
      : png_(png_create_write_struct(
            PNG_LIBPNG_VER_STRING, nullptr,
            [](png_structp, png_const_charp message) { foundation::fatalError(message); }, nullptr)),
        info_(png_create_info_struct(png_)) {
    png_set_write_fn(
        png_, &bytes,
        [](png_structp png, png_bytep data, png_size_t length) {
          static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(data), length);
        },
        nullptr);
  }
  ~Writer() { png_destroy_write_struct(&png_, &info_); }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

  void write(const Pixels& pixels) {
    const bool hasAlpha = !pixels.isOpaque();
    png_set_compression_level(png_, 1);
    png_set_filter(png_, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_IHDR(png_, info_, pixels.width, pixels.height, 8, hasAlpha ? PNG_COLOR_TYPE_RGBA : PNG_COLOR_TYPE_RGB,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png_, info_);
    std::vector<png_byte> row(pixels.width * (hasAlpha ? 4ULL : 3ULL));
    for (std::uint32_t y = 0; y < pixels.height; ++y) {
      writeRow(pixels, y, hasAlpha, row.data());
      png_write_row(png_, row.data());
    }
    png_write_end(png_, info_);
  }

 private:
  png_structp png_;
  png_infop info_;
};

}  // namespace

std::string encodePNG(cairo_surface_t* surface) {
  cairo_surface_flush(surface);
  const Pixels pixels{.data = cairo_image_surface_get_data(surface),
                      .stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface)),
                      .width = static_cast<std::uint32_t>(cairo_image_surface_get_width(surface)),
                      .height = static_cast<std::uint32_t>(cairo_image_surface_get_height(surface))};
  std::string bytes;
  Writer(bytes).write(pixels);
  return bytes;
}

}  // namespace rendering
