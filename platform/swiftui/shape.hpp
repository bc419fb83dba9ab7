#pragma once

#include <variant>
#include <vector>

#include "swiftui/geometry.hpp"

namespace swiftui {

struct Rectangle {
  friend bool operator==(const Rectangle&, const Rectangle&) = default;
};
struct RoundedRectangle {
  double cornerRadius = 0;  ///< points
  friend bool operator==(const RoundedRectangle&, const RoundedRectangle&) = default;
};
/// As large as fits, in the middle of its frame.
struct Circle {
  friend bool operator==(const Circle&, const Circle&) = default;
};

/// A part of a circle's edge, as large as fits, in the middle of its frame. Angles in degrees, clockwise from three
/// o'clock; it is drawn with a pen, never filled.
struct Arc {
  double startAngle = 0;
  double endAngle = 0;
  friend bool operator==(const Arc&, const Arc&) = default;
};

/// Points joined by straight lines.
using Path = std::vector<Point>;

/// What an extension draws with a pen of its own: the path in a frame, whose origin is where the frame's is.
struct PathShape {
  Path (*path)(const Rect& rect) = nullptr;
  friend bool operator==(const PathShape&, const PathShape&) = default;
};

using Shape = std::variant<Rectangle, RoundedRectangle, Circle, Arc, PathShape>;

enum class LineCap { butt, round };
enum class LineJoin { miter, round };

/// The pen that outlines a shape; centred on the outline.
struct StrokeStyle {
  double lineWidth = 1;  ///< points
  LineCap lineCap = LineCap::butt;
  LineJoin lineJoin = LineJoin::miter;
  double miterLimit = 10;
  std::vector<double> dash = {};  ///< lengths of dashes and gaps in turn, points; empty for a full line

  friend bool operator==(const StrokeStyle&, const StrokeStyle&) = default;
};

}  // namespace swiftui
