#pragma once

#include <concepts>
#include <memory>

namespace swiftui {

class View;

/// What a toggle style is given to draw.
struct ToggleStyleConfiguration;

/// The look of toggles: a record that turns a toggle's state and label into a view.
template <class Style>
concept ToggleStyle = requires(const Style& style, const ToggleStyleConfiguration& configuration) {
  { style.makeBody(configuration) } -> std::same_as<View>;
};

/// A toggle style of any type.
class AnyToggleStyle {
 public:
  AnyToggleStyle() = default;
  AnyToggleStyle(const AnyToggleStyle&) = delete;
  AnyToggleStyle& operator=(const AnyToggleStyle&) = delete;
  virtual ~AnyToggleStyle() = default;
  virtual View makeBody(const ToggleStyleConfiguration& configuration) const = 0;
};

}  // namespace swiftui
