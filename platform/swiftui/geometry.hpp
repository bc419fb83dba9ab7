#pragma once

#include <algorithm>
#include <limits>
#include <optional>

namespace swiftui {

// All lengths are points; x runs to the right, y downwards.

struct Point {
  double x = 0;
  double y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  double width = 0;
  double height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
  Point origin = {};
  Size size = {};
  friend bool operator==(const Rect&, const Rect&) = default;
};

struct EdgeInsets {
  double top = 0;
  double leading = 0;
  double bottom = 0;
  double trailing = 0;
  friend bool operator==(const EdgeInsets&, const EdgeInsets&) = default;
};

enum class Axis { horizontal, vertical };

inline constexpr double infinity = std::numeric_limits<double>::infinity();

/// The size that a parent offers. A length that is absent asks for the ideal one, 0 for the smallest and infinity for
/// the largest.
struct ProposedSize {
  std::optional<double> width = std::nullopt;
  std::optional<double> height = std::nullopt;

  static ProposedSize of(Size size) { return {.width = size.width, .height = size.height}; }
  friend bool operator==(const ProposedSize&, const ProposedSize&) = default;
};

}  // namespace swiftui
