#pragma once

#include <gtest/gtest.h>
#include <png.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace rendering {

using Pixel = std::array<int, 4>;  ///< red, green, blue, alpha; not multiplied

/// A decoded PNG file.
struct Pixels {
  unsigned width = 0;
  unsigned height = 0;
  bool hasAlpha = false;
  std::vector<std::uint8_t> bytes = {};

  Pixel at(unsigned x, unsigned y) const {
    const std::size_t start = 4 * (static_cast<std::size_t>(y) * width + x);
    return {bytes.at(start), bytes.at(start + 1), bytes.at(start + 2), bytes.at(start + 3)};
  }
};

inline Pixels decoded(const std::string& file) {
  png_image image;
  std::memset(&image, 0, sizeof image);
  image.version = PNG_IMAGE_VERSION;
  Pixels pixels;
  if (png_image_begin_read_from_memory(&image, file.data(), file.size()) == 0) {
    ADD_FAILURE() << image.message;
    return pixels;
  }
  pixels.width = image.width;
  pixels.height = image.height;
  pixels.hasAlpha = (image.format & PNG_FORMAT_FLAG_ALPHA) != 0;
  image.format = PNG_FORMAT_RGBA;
  pixels.bytes.resize(PNG_IMAGE_SIZE(image));
  if (png_image_finish_read(&image, nullptr, pixels.bytes.data(), 0, nullptr) == 0) ADD_FAILURE() << image.message;
  return pixels;
}

}  // namespace rendering
