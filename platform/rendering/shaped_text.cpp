#include "rendering/shaped_text.hpp"

#include <algorithm>

namespace rendering {

double ShapedText::width(double size, double spacing) const {
  double width = 0;
  for (const GlyphRun& run : runs) {
    for (const GlyphCluster& cluster : run.clusters) width += cluster.advance * size + (cluster.isSpaced ? spacing : 0);
  }
  return std::max(0.0, width);
}

}  // namespace rendering
