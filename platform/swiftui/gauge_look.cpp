#include "swiftui/gauge_look.hpp"

#include <cmath>
#include <numbers>

namespace swiftui {
namespace {

constexpr double startAngle = 135;
constexpr double sweep = 270;
/// Of the diameter.
constexpr double ringWidth = 0.1;
/// What the ring leaves free of its slot on each side, points.
constexpr double margin = 4;
/// The marker is a little wider than the ring and keeps a gap to it, both in widths of the ring.
constexpr double markerDiameter = 1.25;
constexpr double markerGap = 0.3;
constexpr double ringOpacity = 0.35;

/// Where the middle of the ring's line and its ends are, for a diameter.
struct Ring {
  double width = 0;
  double radius = 0;

  explicit Ring(double diameter) : width(ringWidth * diameter), radius((diameter - width) / 2) {}

  double degrees(double length) const { return radius > 0 ? length / radius * 180 / std::numbers::pi : 0; }
};

/// The ring but for a gap around the marker.
View track(double fraction, const Ring& ring) {
  const double angle = startAngle + sweep * fraction;
  // The round ends of the pen reach beyond the arc.
  const double gap = ring.degrees((markerDiameter / 2 + markerGap + 0.5) * ring.width);
  const auto piece = [&](double from, double to) {
    if (to <= from) return emptyView();
    return stroked(Arc{.startAngle = from, .endAngle = to}, {.lineWidth = ring.width, .lineCap = LineCap::round})
        .padding(ring.width / 2)
        .opacity(ringOpacity);
  };
  return zstack(Alignment::center, {piece(startAngle, angle - gap), piece(angle + gap, startAngle + sweep)});
}

View marker(double fraction, const Ring& ring) {
  const double angle = (startAngle + sweep * fraction) * std::numbers::pi / 180;
  const double side = markerDiameter * ring.width;
  return filled(Circle{})
      .frame({.width = side, .height = side})
      .offset({.x = ring.radius * std::cos(angle), .y = ring.radius * std::sin(angle)});
}

}  // namespace

View accessoryCircularGauge(GaugeOptions options, const View& label, const View& currentValueLabel) {
  const double fraction = options.total > 0 ? std::clamp(options.value / options.total, 0.0, 1.0) : 0;
  return geometryReader([=](Size size) {
    const double diameter = std::max(0.0, std::min(size.width, size.height) - 2 * margin);
    const Ring ring(diameter);
    const auto fitted = [](const View& text, double width, double height) {
      return text.lineLimit(1).minimumScaleFactor(0.1).frame({.width = width, .height = height});
    };
    // The opening of the ring is as wide as its inner square.
    return zstack(Alignment::center,
                  {
                      track(fraction, ring),
                      marker(fraction, ring),
                      // The value is part of what the gauge says by itself.
                      fitted(currentValueLabel, 0.56 * diameter, 0.5 * diameter).accessibilityHidden(),
                      fitted(label, 0.5 * diameter, 0.2 * diameter).offset({.x = 0, .y = 0.42 * diameter}),
                  })
        .frame({.width = diameter, .height = diameter})
        .frame({.width = size.width, .height = size.height});
  });
}

}  // namespace swiftui
