#pragma once

#include <cairo.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "swiftui/geometry.hpp"
#include "uikit/color.hpp"

namespace rendering {

/// How a picture is drawn: stretched into the frame, in its own colours or, with a tint, as a stencil of that.
struct Drawing {
  swiftui::Rect frame = {};
  std::optional<uikit::RGBA> tint = std::nullopt;
  double opacity = 1;
};

/// A picture that is read from a file.
class Picture {
 public:
  Picture() = default;
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;
  virtual ~Picture() = default;

  /// Its own size in points; neither length is 0.
  virtual swiftui::Size size() const = 0;
  /// About what it takes to keep, in bytes.
  virtual std::size_t cost() const = 0;
  virtual void draw(cairo_t* cairo, const Drawing& drawing) const = 0;
};

/// The picture in the bytes of a PNG file with that many pixels to the point, 2,048 pixels wide and high at the most;
/// null if it cannot be read.
std::unique_ptr<Picture> pictureOfPNG(const std::string& bytes, int density);

/// The picture in the bytes of an SVG file, a unit to the point, crisp at any size; null if it cannot be read or drawn.
/// Its size is that of the file, or that of its view box if it gives none, 2,048 points at the most. It is complete in
/// itself: nothing that it refers to elsewhere is read.
std::unique_ptr<Picture> pictureOfSVG(const std::string& bytes);

}  // namespace rendering
