#pragma once

#include <string>
#include <vector>

#include "swiftui/element.hpp"

namespace swiftui {

/// One line of a text as it is shown.
struct TextLine {
  std::string content = {};
  double width = 0;  ///< points, with the tracking behind its last character
};

/// A text broken into lines for a proposed size, before its size is rounded to pixels.
struct TextLayout {
  std::vector<TextLine> lines = {};
  std::string shown = {};    ///< the content, cut where it did not fit; line breaks are only its own
  double scale = 1;          ///< the factor by which it was shrunk
  FontMetrics metrics = {};  ///< of the font at the size that it is drawn with

  double width() const;
  double height() const { return metrics.lineHeight() * static_cast<double>(lines.size()); }
};

/// Knows how large the things are that layout cannot compute: texts and pictures. Layout tests use a fake whose letters
/// are all as wide.
class LeafMeasurer {
 public:
  LeafMeasurer() = default;
  LeafMeasurer(const LeafMeasurer&) = delete;
  LeafMeasurer& operator=(const LeafMeasurer&) = delete;
  virtual ~LeafMeasurer() = default;

  /// An absent or infinite width keeps each paragraph on one line. One line is shown whatever the height.
  virtual TextLayout layoutText(const std::string& content, const TextStyle& style, ProposedSize proposal) const = 0;
  virtual FontMetrics fontMetrics(const Font& font) const = 0;
  /// The picture's own size in points; nothing where there is no such picture.
  virtual Size imageSize(const ImageElement& image) const = 0;
};

}  // namespace swiftui
