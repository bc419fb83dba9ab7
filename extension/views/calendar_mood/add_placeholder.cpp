#include "calendar_mood/add_placeholder.hpp"

#include "calendar_mood/accent_color.hpp"

namespace mirune {

using namespace swiftui;

View AddPlaceholder::body(const EnvironmentValues&) const {
  const StrokeStyle dashed{.lineWidth = 1, .lineCap = LineCap::round, .lineJoin = LineJoin::round, .dash = {5, 5}};
  return strokedInside(Circle{}, dashed)
      .overlay(resizableSymbol("plus").frame({.width = 11, .height = 11}))
      .foregroundColor(accentColor());
}

}  // namespace mirune
