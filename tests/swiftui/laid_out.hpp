#pragma once

#include <string>

#include "support/fake_measurer.hpp"
#include "swiftui/outline.hpp"

namespace swiftui {

/// A view laid out in a size, as an outline.
inline std::string laidOut(const View& view, Size size, LayoutDirection direction = LayoutDirection::leftToRight,
                           const support::FakeMeasurer& measurer = {}) {
  const EnvironmentValues environment{.layoutDirection = direction};
  const ResolvedWidget widget = resolve(view, environment);
  return '\n' +
         outline(layout(widget.content,
                        {.bounds = {.origin = {}, .size = size}, .displayScale = 2, .direction = direction}, measurer));
}

/// The size that a view takes when it is proposed one.
inline Size answered(const View& view, ProposedSize proposal, const support::FakeMeasurer& measurer = {},
                     double displayScale = 2) {
  return sizeThatFits(resolve(view, {}).content, proposal, displayScale, measurer);
}

inline void PrintTo(const Size& size, std::ostream* out) {
  *out << size.width << 'x' << size.height;
}

}  // namespace swiftui
