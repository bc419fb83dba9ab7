#include "rendering/typography.hpp"

#include <algorithm>
#include <array>

namespace rendering {
namespace {

using swiftui::FontWeight;

// Of the platform's system font, in 2048 units to the em.
constexpr double unitsPerEm = 2048;
constexpr double ascender = 1950;
constexpr double descender = 494;
constexpr double capHeight = 1443;

struct TrackingRow {
  double size;      ///< points
  double tracking;  ///< thousandths of an em
};

// The platform's published tracking of its system font.
constexpr std::array<TrackingRow, 20> trackingTable{{
    {6, 41},   {7, 34},   {8, 26},   {9, 19},   {10, 12},  {11, 6},   {12, 0}, {13, -6}, {14, -11}, {15, -16},
    {16, -20}, {17, -26}, {18, -25}, {19, -24}, {20, -23}, {22, -12}, {24, 3}, {28, 14}, {34, 12},  {80, 0},
}};

double platformTracking(double size) {
  if (size <= trackingTable.front().size) return trackingTable.front().tracking;
  if (size >= trackingTable.back().size) return trackingTable.back().tracking;
  const auto* above = std::ranges::lower_bound(trackingTable, size, {}, &TrackingRow::size);
  const auto* below = above - 1;
  const double part = (size - below->size) / (above->size - below->size);
  return below->tracking + part * (above->tracking - below->tracking);
}

/// How much narrower than the platform's font Inter is, measured over UI texts: thousandths of an em.
double interCorrection(FontWeight weight) {
  switch (weight) {
    case FontWeight::medium:
      return 4;
    case FontWeight::semibold:
      return 10;
    case FontWeight::bold:
    case FontWeight::heavy:
    case FontWeight::black:
      return 15;
    default:
      return -1.4;
  }
}

}  // namespace

swiftui::FontMetrics systemFontMetrics(double size) {
  const double unit = size / unitsPerEm;
  return {.ascent = ascender * unit, .descent = descender * unit, .capHeight = capHeight * unit};
}

double systemTracking(double size, FontWeight weight) {
  return (platformTracking(size) + interCorrection(weight)) / 1000;
}

}  // namespace rendering
