#include "swiftui/environment_values.hpp"

#include "swiftui/overload.hpp"

namespace swiftui {

EnvironmentValues changed(EnvironmentValues values, const EnvironmentChange& change) {
  std::visit(Overload{
                 [&](const SetFont& set) { values.font = set.font; },
                 [&](const SetForegroundColor& set) { values.foregroundColor = set.color; },
                 [&](const SetColorScheme& set) { values.colorScheme = set.scheme; },
                 [&](const MultiplyOpacity& set) { values.opacity *= set.opacity; },
                 [&](const SetKerning& set) { values.kerning = set.kerning; },
                 [&](const SetLineLimit& set) { values.lineLimit = set.limit; },
                 [&](const SetMinimumScaleFactor& set) { values.minimumScaleFactor = set.factor; },
                 [&](const SetMultilineTextAlignment& set) { values.multilineTextAlignment = set.alignment; },
                 [&](const SetToggleStyle& set) { values.toggleStyle = set.style; },
                 [&](const HideFromAccessibility&) { values.accessibilityHidden = true; },
                 [&](const Unredact&) { values.isRedacted = false; },
             },
             change);
  return values;
}

}  // namespace swiftui
