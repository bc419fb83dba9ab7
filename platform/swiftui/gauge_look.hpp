#pragma once

#include "swiftui/view.hpp"

namespace swiftui {

/// The accessory circular style of a gauge: a ring of 270 degrees that opens downwards, with a marker at the value that
/// stands clear of it. The figures are those that observers of the platform report: a ring a tenth of the diameter
/// wide, round ends.
View accessoryCircularGauge(GaugeOptions options, const View& label, const View& currentValueLabel);

}  // namespace swiftui
