#include "calendar_mood/today_marker.hpp"

#include "calendar_mood/accent_color.hpp"

namespace mirune {

using namespace swiftui;

View TodayMarker::body(const EnvironmentValues&) const {
  return geometryReader([](Size cell) {
    constexpr double reach = 1.5;
    const double diameter = reach * cell.width;
    const View border =
        strokedInside(Circle{}, {.lineWidth = 0.5, .lineCap = LineCap::round, .lineJoin = LineJoin::round})
            .foregroundColor(accentColor())
            .opacity(0.75);
    return filled(Circle{})
        .foregroundColor(uikit::SystemColor::pink)
        .opacity(0.1)
        .overlay(border)
        .frame({.width = diameter, .height = diameter})
        .offset({.x = (cell.width - diameter) / 2, .y = (cell.height - diameter) / 2});
  });
}

}  // namespace mirune
