#include "rendering/png_encoder.hpp"

#include <libdeflate.h>

#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

#include "foundation/fatal_error.hpp"

namespace rendering {
namespace {

using Compressor =
    std::unique_ptr<libdeflate_compressor,
                    decltype([](libdeflate_compressor* compressor) { libdeflate_free_compressor(compressor); })>;

/// On flat art the fastest level is nearly the smallest, too, and rows are smallest as they are.
constexpr int compressionLevel = 1;
constexpr char noFilter = 0;

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
      std::uint32_t all = 0xFF000000;
      for (std::uint32_t x = 0; x < width; ++x) all &= at(x, y);
      if (all >> 24 != 0xFF) return false;
    }
    return true;
  }
};

/// The word with its colours as they are without alpha.
std::uint32_t plain(std::uint32_t word) {
  const std::uint32_t alpha = word >> 24;
  if (alpha == 0xFF || alpha == 0) return word;
  const auto part = [&](int shift) { return ((word >> shift & 0xFF) * 255 + alpha / 2) / alpha << shift; };
  return alpha << 24 | part(16) | part(8) | part(0);
}

std::uint32_t bigEndian(std::uint32_t number) {
  return std::endian::native == std::endian::big ? number : std::byteswap(number);
}

/// Bytes that nothing was written to yet: clearing them would take as long as drawing.
struct Bytes {
  explicit Bytes(std::size_t most) : data(std::make_unique_for_overwrite<char[]>(most)), size(most) {}

  std::unique_ptr<char[]> data;
  std::size_t size;
};

/// All rows, each behind its filter: red, green, blue and, where there are four samples, alpha.
template <std::size_t samples>
Bytes rowsOf(const Pixels& pixels) {
  Bytes rows((1 + pixels.width * samples) * pixels.height);
  char* out = rows.data.get();
  for (std::uint32_t y = 0; y < pixels.height; ++y) {
    *out++ = noFilter;
    for (std::uint32_t x = 0; x < pixels.width; ++x, out += samples) {
      const std::uint32_t word = bigEndian(std::rotl(plain(pixels.at(x, y)), 8));
      std::memcpy(out, &word, samples);
    }
  }
  return rows;
}

void appendNumber(std::string& bytes, std::uint32_t number) {
  const std::uint32_t word = bigEndian(number);
  bytes.append(reinterpret_cast<const char*>(&word), sizeof word);
}

/// Length, type and data, and a check sum of the last two.
void appendChunk(std::string& bytes, std::string_view type, std::string_view data) {
  appendNumber(bytes, static_cast<std::uint32_t>(data.size()));
  const std::size_t checked = bytes.size();
  bytes += type;
  bytes += data;
  appendNumber(bytes, libdeflate_crc32(0, bytes.data() + checked, bytes.size() - checked));
}

Bytes compressed(const Bytes& rows) {
  const Compressor compressor(libdeflate_alloc_compressor(compressionLevel));
  if (!compressor) foundation::fatalError("no memory for a picture");
  Bytes data(libdeflate_zlib_compress_bound(compressor.get(), rows.size));
  data.size = libdeflate_zlib_compress(compressor.get(), rows.data.get(), rows.size, data.data.get(), data.size);
  return data;
}

}  // namespace

std::string encodePNG(cairo_surface_t* surface) {
  cairo_surface_flush(surface);
  const Pixels pixels{.data = cairo_image_surface_get_data(surface),
                      .stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface)),
                      .width = static_cast<std::uint32_t>(cairo_image_surface_get_width(surface)),
                      .height = static_cast<std::uint32_t>(cairo_image_surface_get_height(surface))};
  const bool hasAlpha = !pixels.isOpaque();
  constexpr char bitsPerSample = 8;
  constexpr char colors = 2;
  constexpr char colorsAndAlpha = 6;
  std::string header;
  appendNumber(header, pixels.width);
  appendNumber(header, pixels.height);
  header += bitsPerSample;
  header += hasAlpha ? colorsAndAlpha : colors;
  header.append(3, '\0');  // the only compression, the only set of filters, rows in their order

  const Bytes data = compressed(hasAlpha ? rowsOf<4>(pixels) : rowsOf<3>(pixels));
  std::string bytes = "\x89PNG\r\n\x1a\n";
  appendChunk(bytes, "IHDR", header);
  appendChunk(bytes, "IDAT", {data.data.get(), data.size});
  appendChunk(bytes, "IEND", {});
  return bytes;
}

}  // namespace rendering
