#pragma once

#include <hb.h>

#include <cstddef>
#include <string>
#include <vector>

#include "rendering/font_library.hpp"
#include "rendering/glyph_style.hpp"

namespace rendering {

/// A part of a line that is shaped at once: of one typeface and one script, in one direction.
struct TextSegment {
  std::size_t start = 0;  ///< bytes
  std::size_t end = 0;
  const Typeface* typeface = nullptr;  ///< null where a machine has no font at all
  hb_script_t script = HB_SCRIPT_COMMON;
  bool runsToTheLeft = false;
};

/// The parts of a line from left to right.
std::vector<TextSegment> segmentsOf(const std::string& line, const GlyphStyle& style, FontLibrary& fonts);

}  // namespace rendering
