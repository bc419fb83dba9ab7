#pragma once

#include <cairo.h>

#include <memory>

#include "swiftui/leaf_measurer.hpp"

namespace rendering {

class Shaper;

/// Breaks texts into lines and draws them.
class TextEngine {
 public:
  TextEngine();
  ~TextEngine();
  TextEngine(const TextEngine&) = delete;
  TextEngine& operator=(const TextEngine&) = delete;

  swiftui::TextLayout layoutText(const std::string& content, const swiftui::TextStyle& style,
                                 swiftui::ProposedSize proposal) const;
  swiftui::FontMetrics fontMetrics(const swiftui::Font& font) const;

  /// Draws one line of a laid-out text with the source that is set; its left edge and baseline stand at `origin`.
  void drawLine(cairo_t* cairo, const std::string& line, const swiftui::TextStyle& style, double scale,
                swiftui::Point origin) const;

 private:
  std::unique_ptr<Shaper> shaper_;
};

}  // namespace rendering
