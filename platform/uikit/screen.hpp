#pragma once

#include <optional>
#include <string_view>

namespace uikit {

/// The bounds of the device's screen in portrait, in points.
struct Screen {
  int width = 390;
  int height = 844;

  /// Reads "390x844"; nothing for other texts and for sides below 1 or above 10000.
  static std::optional<Screen> parse(std::string_view text);

  friend bool operator==(const Screen&, const Screen&) = default;
};

}  // namespace uikit
