#pragma once

#include "swiftui/shape.hpp"

namespace mirune {

/// A horizontal rule along the top edge of its frame.
struct Line {
  static swiftui::Path path(const swiftui::Rect& rect);

  operator swiftui::Shape() const { return swiftui::PathShape{.path = path}; }  // NOLINT(google-explicit-constructor)
};

}  // namespace mirune
