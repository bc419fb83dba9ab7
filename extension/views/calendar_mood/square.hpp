#pragma once

#include "swiftui/view.hpp"

namespace mirune {

/// The view in the largest square that fits.
inline swiftui::View inSquare(swiftui::View content) {
  // A circle takes a square of any proposal; this one is not seen.
  return swiftui::filled(swiftui::Circle{}).foregroundColor(uikit::clear).overlay(std::move(content));
}

}  // namespace mirune
