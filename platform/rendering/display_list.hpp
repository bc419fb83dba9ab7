#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "swiftui/layout.hpp"

namespace rendering {

// A picture as data: what is painted, in order, in points. Recorded once from a placed tree; the outputs play it, tests
// read it. It holds only what can be seen.

/// How a thing is painted.
struct Ink {
  uikit::RGBA color = {};
  double opacity = 1;  ///< on top of the colour's own alpha

  friend bool operator==(const Ink&, const Ink&) = default;
};

struct DrawText {
  struct Line {
    std::string content = {};
    swiftui::Point origin = {};  ///< where its baseline begins
  };

  std::string shown = {};
  std::vector<Line> lines = {};
  swiftui::TextStyle style = {};
  double scale = 1;  ///< the factor by which the style's font is shrunk
  swiftui::Rect frame = {};
  Ink ink = {};
};

struct DrawImage {
  std::string name = {};
  bool isSymbol = false;
  std::filesystem::path folder = {};  ///< where else its picture may be; not printed
  uikit::ColorScheme colorScheme = uikit::ColorScheme::light;
  std::optional<uikit::RGBA> tint = std::nullopt;  ///< absent: in its own colours
  swiftui::Rect frame = {};
  double opacity = 1;
};

struct DrawShape {
  swiftui::Shape shape = {};
  std::optional<swiftui::StrokeStyle> stroke = std::nullopt;  ///< absent: filled
  bool isStrokeInside = false;
  swiftui::Rect frame = {};
  Ink ink = {};
};

using DrawCommand = std::variant<DrawText, DrawImage, DrawShape>;
using DisplayList = std::vector<DrawCommand>;

/// What a placed tree paints, appended in painting order.
void record(const swiftui::PlacedElement& placed, DisplayList& list);

}  // namespace rendering
