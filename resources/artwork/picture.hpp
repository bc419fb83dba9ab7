#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace artwork {

/// A colour of the sRGB space, channels from 0 to 1 as they are stored (not linear).
struct Colour {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;
};

Colour mix(const Colour& from, const Colour& to, double share);

/// Reads "#RRGGBB". Throws std::invalid_argument for anything else.
Colour colourFrom(std::string_view hex);

/// A grid of pixels with straight (not premultiplied) alpha.
class Picture {
 public:
  Picture(int width, int height);

  int width() const { return width_; }
  int height() const { return height_; }
  Colour& at(int x, int y) { return pixels_[index(x, y)]; }
  const Colour& at(int x, int y) const { return pixels_[index(x, y)]; }

  /// Writes a PNG of 8 bits a channel; an opaque one carries no alpha channel. Throws std::runtime_error if it cannot.
  void writePng(const std::filesystem::path& file, bool opaque) const;

 private:
  std::size_t index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }

  int width_;
  int height_;
  std::vector<Colour> pixels_;
};

}  // namespace artwork
