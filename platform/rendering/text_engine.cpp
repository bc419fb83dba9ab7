#include "rendering/text_engine.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "rendering/drawable_text.hpp"
#include "rendering/glyph_drawing.hpp"
#include "rendering/letters.hpp"
#include "rendering/shaper.hpp"
#include "rendering/text_breaking.hpp"
#include "rendering/typography.hpp"

namespace rendering {
namespace {

using swiftui::Font;
using swiftui::FontMetrics;
using swiftui::ProposedSize;
using swiftui::TextLayout;
using swiftui::TextLine;
using swiftui::TextStyle;

/// How close to the largest fitting size a shrunk text comes, and how small it gets at the most.
constexpr double scaleStep = 0.01;

Font scaled(Font font, double scale) {
  font.size *= scale;
  return font;
}

/// A shrunk text keeps the tracking, in em, of its nominal size.
GlyphStyle glyphStyle(const TextStyle& style, double scale) {
  double spacing = style.kerning;
  if (style.font.name.empty()) spacing += systemTracking(style.font.size, style.font.weight) * style.font.size;
  return {.font = scaled(style.font, scale),
          .spacing = spacing * scale,
          .direction = style.direction,
          .language = style.language};
}

std::size_t allowedLines(const TextStyle& style, ProposedSize proposal, double lineHeight) {
  double lines = std::numeric_limits<int>::max();
  if (proposal.height) lines = std::min(lines, std::floor((*proposal.height + widthTolerance) / lineHeight));
  if (style.lineLimit) lines = std::min(lines, static_cast<double>(*style.lineLimit));
  return static_cast<std::size_t>(std::max(1.0, lines));
}

}  // namespace

TextEngine::TextEngine() : shaper_(std::make_unique<Shaper>()) {}
TextEngine::~TextEngine() = default;

FontMetrics TextEngine::fontMetrics(const Font& font) const {
  return font.name.empty() ? systemFontMetrics(font.size) : shaper_->customFontMetrics(font);
}

TextLayout TextEngine::layoutText(const std::string& original, const TextStyle& style, ProposedSize proposal) const {
  // Nothing can be read in no width; the line keeps its height.
  if (proposal.width && *proposal.width <= 0) {
    return {.lines = {TextLine{}}, .shown = {}, .scale = 1, .metrics = fontMetrics(style.font)};
  }

  const std::string content = drawableText(original);
  const double room = proposal.width.value_or(swiftui::infinity) + widthTolerance;

  struct Attempt {
    double scale = 1;
    FontMetrics metrics = {};
    std::size_t allowed = 1;
    BrokenText broken = {};

    bool fits(double width) const {
      return broken.lines.size() <= allowed && !broken.breaksWord && broken.width <= width;
    }
  };
  const auto attempt = [&](double scale) {
    Attempt result{.scale = scale, .metrics = fontMetrics(scaled(style.font, scale))};
    result.allowed = allowedLines(style, proposal, result.metrics.lineHeight());
    result.broken = breakText(*shaper_, content, glyphStyle(style, scale), proposal.width);
    return result;
  };

  Attempt best = attempt(1);
  if (const double least = std::max(style.minimumScaleFactor, scaleStep); !best.fits(room) && least < 1) {
    best = attempt(least);
    double tooLarge = 1;
    while (best.fits(room) && tooLarge - best.scale > scaleStep) {
      Attempt middle = attempt((best.scale + tooLarge) / 2);
      if (middle.fits(room)) {
        best = std::move(middle);
      } else {
        tooLarge = middle.scale;
      }
    }
  }

  TextLayout layout{.lines = {}, .shown = content, .scale = best.scale, .metrics = best.metrics};
  const GlyphStyle glyphs = glyphStyle(style, best.scale);
  const auto& lines = best.broken.lines;
  const std::size_t whole = lines.size() > best.allowed ? best.allowed - 1 : lines.size();
  for (std::size_t i = 0; i < whole; ++i) layout.lines.push_back(lines[i].shown);
  if (whole < lines.size()) {
    const std::size_t start = lines[whole].start;
    const std::string rest = content.substr(start);
    const std::size_t end = rest.find('\n');
    layout.lines.push_back(
        truncatedLine(*shaper_, rest.substr(0, end), end != std::string::npos, glyphs, proposal.width));
    layout.shown = content.substr(0, start);
    const std::string& last = layout.lines.back().content;
    if (last.empty() || last == ellipsis) layout.shown = withoutBlanksAtEnd(layout.shown);
    layout.shown += last;
  }
  return layout;
}

void TextEngine::drawLine(cairo_t* cairo, const std::string& line, const TextStyle& style, double scale,
                          swiftui::Point origin) const {
  const GlyphStyle glyphs = glyphStyle(style, scale);
  drawGlyphs(cairo, shaper_->shaped(line, glyphs), line, glyphs, origin);
}

}  // namespace rendering
