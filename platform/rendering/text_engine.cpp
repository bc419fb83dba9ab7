#include "rendering/text_engine.hpp"

#include <cmath>
#include <span>
#include <string_view>

#include "rendering/glyph_text.hpp"
#include "rendering/typography.hpp"

namespace rendering {
namespace {

using swiftui::Font;
using swiftui::FontMetrics;
using swiftui::ProposedSize;
using swiftui::TextLayout;
using swiftui::TextLine;
using swiftui::TextStyle;

constexpr std::string_view ellipsis = "…";
/// How close to the largest fitting size a shrunk text comes, and how small it gets at the most.
constexpr double scaleStep = 0.01;
/// Widths that differ by less are the same.
constexpr double tolerance = 1e-3;
/// The pen around the outlines of the rounded design, in em: about half of what separates two weights.
constexpr double roundedPen = 0.022;
/// In bytes: more than any widget shows of a text. The time to break a long word grows with the square of its length.
constexpr std::size_t longestText = 4096;

/// The beginning of a text that is too long to be laid out, with an ellipsis for the rest.
std::string shortened(const std::string& content) {
  std::size_t end = longestText - ellipsis.size();
  const auto isInsideCharacter = [&] { return (content[end] & 0xC0) == 0x80; };
  while (end > 0 && isInsideCharacter()) --end;
  return content.substr(0, end).append(ellipsis);
}

Font scaled(Font font, double scale) {
  font.size *= scale;
  return font;
}

/// A shrunk text keeps the tracking, in em, of its nominal size.
GlyphStyle glyphStyle(const TextStyle& style, double scale) {
  double spacing = style.kerning;
  if (style.font.name.empty()) spacing += systemTracking(style.font.size, style.font.weight) * style.font.size;
  return {.font = scaled(style.font, scale), .spacing = spacing * scale, .direction = style.direction};
}

/// A text broken at a width, before anything is cut.
struct BrokenText {
  struct Line {
    std::size_t start = 0;
    std::size_t length = 0;
    double width = 0;
  };
  std::vector<Line> lines = {};
  bool breaksWord = false;  ///< a word was too wide for a line of its own
};

double lineWidth(PangoLayoutLine* line) {
  PangoRectangle logical;
  pango_layout_line_get_extents(line, nullptr, &logical);
  return pango_units_to_double(logical.width);
}

void setWidth(PangoLayout* paragraph, std::optional<double> width) {
  if (!width || std::isinf(*width)) return;
  // Pango counts in whole units: to the next one, so that a text fits into the width that it was measured with.
  pango_layout_set_width(paragraph, static_cast<int>(std::ceil(*width * PANGO_SCALE - tolerance)));
  pango_layout_set_wrap(paragraph, PANGO_WRAP_WORD_CHAR);
}

bool startsInsideWord(const std::string& content, std::size_t start, const PangoLogAttr* attributes) {
  if (start == 0 || content[start - 1] == '\n') return false;
  const auto character = g_utf8_pointer_to_offset(content.c_str(), content.c_str() + start);
  return attributes[character].is_line_break == 0;
}

BrokenText breakText(PangoLayout* paragraph, const std::string& content) {
  BrokenText broken;
  int count = 0;
  const PangoLogAttr* attributes = pango_layout_get_log_attrs_readonly(paragraph, &count);
  for (GSList* item = pango_layout_get_lines_readonly(paragraph); item != nullptr; item = item->next) {
    auto* line = static_cast<PangoLayoutLine*>(item->data);
    const auto start = static_cast<std::size_t>(line->start_index);
    broken.breaksWord = broken.breaksWord || startsInsideWord(content, start, attributes);
    broken.lines.push_back(
        {.start = start, .length = static_cast<std::size_t>(line->length), .width = lineWidth(line)});
  }
  return broken;
}

/// Where the shaper cut a line that it was told to end with an ellipsis; nothing if all of it fitted.
std::optional<std::size_t> cutPosition(PangoLayoutLine* line) {
  for (GSList* item = line->runs; item != nullptr; item = item->next) {
    const PangoItem* run = static_cast<PangoLayoutRun*>(item->data)->item;
    if ((run->analysis.flags & PANGO_ANALYSIS_FLAG_IS_ELLIPSIS) != 0) return static_cast<std::size_t>(run->offset);
  }
  return std::nullopt;
}

/// A single line of the text, cut with an ellipsis where it is too wide. `continues` says that more would follow on
/// other lines, so that an ellipsis is due in any case.
TextLine truncatedLine(const GlyphText& glyphs, std::string content, bool continues, const GlyphStyle& style,
                       std::optional<double> width) {
  if (continues) content += ellipsis;
  const auto paragraph = glyphs.paragraph(content, style);
  pango_layout_set_ellipsize(paragraph.get(), PANGO_ELLIPSIZE_END);
  setWidth(paragraph.get(), width);
  PangoLayoutLine* line = pango_layout_get_line_readonly(paragraph.get(), 0);
  if (const auto cut = cutPosition(line)) {
    content.resize(*cut);
    // No blank is left standing before the ellipsis.
    while (content.ends_with(' ')) content.pop_back();
    content += ellipsis;
    const auto cutParagraph = glyphs.paragraph(content, style);
    return {.content = content, .width = lineWidth(pango_layout_get_line_readonly(cutParagraph.get(), 0))};
  }
  return {.content = content, .width = lineWidth(line)};
}

std::size_t allowedLines(const TextStyle& style, ProposedSize proposal, double lineHeight) {
  double lines = std::numeric_limits<int>::max();
  if (proposal.height) lines = std::min(lines, std::floor((*proposal.height + tolerance) / lineHeight));
  if (style.lineLimit) lines = std::min(lines, static_cast<double>(*style.lineLimit));
  return static_cast<std::size_t>(std::max(1.0, lines));
}

}  // namespace

TextEngine::TextEngine() : glyphs_(std::make_unique<GlyphText>()) {}
TextEngine::~TextEngine() = default;

FontMetrics TextEngine::fontMetrics(const Font& font) const {
  return font.name.empty() ? systemFontMetrics(font.size) : glyphs_->customFontMetrics(font);
}

TextLayout TextEngine::layoutText(const std::string& content, const TextStyle& style, ProposedSize proposal) const {
  // Nothing can be read in no width; the line keeps its height.
  if (proposal.width && *proposal.width <= 0) {
    return {.lines = {TextLine{}}, .shown = {}, .scale = 1, .metrics = fontMetrics(style.font)};
  }

  if (content.size() > longestText) return layoutText(shortened(content), style, proposal);

  struct Attempt {
    double scale = 1;
    FontMetrics metrics = {};
    std::size_t allowed = 1;
    BrokenText broken = {};

    bool fits() const { return broken.lines.size() <= allowed && !broken.breaksWord; }
  };
  const auto attempt = [&](double scale) {
    Attempt result{.scale = scale, .metrics = fontMetrics(scaled(style.font, scale))};
    result.allowed = allowedLines(style, proposal, result.metrics.lineHeight());
    const auto paragraph = glyphs_->paragraph(content, glyphStyle(style, scale));
    setWidth(paragraph.get(), proposal.width);
    result.broken = breakText(paragraph.get(), content);
    return result;
  };

  Attempt best = attempt(1);
  if (const double least = std::max(style.minimumScaleFactor, scaleStep); !best.fits() && least < 1) {
    best = attempt(least);
    double tooLarge = 1;
    while (best.fits() && tooLarge - best.scale > scaleStep) {
      Attempt middle = attempt((best.scale + tooLarge) / 2);
      if (middle.fits()) {
        best = std::move(middle);
      } else {
        tooLarge = middle.scale;
      }
    }
  }

  TextLayout layout{.lines = {}, .shown = content, .scale = best.scale, .metrics = best.metrics};
  const auto& lines = best.broken.lines;
  const std::size_t whole = lines.size() > best.allowed ? best.allowed - 1 : lines.size();
  for (const auto& line : std::span(lines).first(whole)) {
    layout.lines.push_back({.content = content.substr(line.start, line.length), .width = line.width});
  }
  if (whole < lines.size()) {
    const std::size_t start = lines[whole].start;
    const std::string rest = content.substr(start);
    const std::size_t end = rest.find('\n');
    layout.lines.push_back(truncatedLine(*glyphs_, rest.substr(0, end), end != std::string::npos,
                                         glyphStyle(style, best.scale), proposal.width));
    layout.shown = content.substr(0, start) + layout.lines.back().content;
  }
  return layout;
}

void TextEngine::drawLine(cairo_t* cairo, const std::string& line, const TextStyle& style, double scale,
                          swiftui::Point origin) const {
  const auto paragraph = glyphs_->paragraph(line, glyphStyle(style, scale));
  PangoLayoutLine* glyphLine = pango_layout_get_line_readonly(paragraph.get(), 0);
  cairo_move_to(cairo, origin.x, origin.y);
  if (style.font.design != swiftui::FontDesign::rounded) {
    pango_cairo_show_layout_line(cairo, glyphLine);
    return;
  }
  // Filled and outlined into one stencil first: where the two overlap a translucent colour must not be seen twice.
  cairo_save(cairo);
  pango_cairo_layout_line_path(cairo, glyphLine);
  const double pen = roundedPen * style.font.size * scale;
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  cairo_fill_extents(cairo, &left, &top, &right, &bottom);
  cairo_path_t* outlines = cairo_copy_path(cairo);
  cairo_new_path(cairo);
  cairo_rectangle(cairo, left - pen, top - pen, right - left + 2 * pen, bottom - top + 2 * pen);
  cairo_clip(cairo);
  cairo_push_group_with_content(cairo, CAIRO_CONTENT_ALPHA);
  cairo_append_path(cairo, outlines);
  cairo_path_destroy(outlines);
  cairo_set_source_rgb(cairo, 0, 0, 0);
  cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
  cairo_set_line_width(cairo, pen);
  cairo_fill_preserve(cairo);
  cairo_stroke(cairo);
  cairo_pattern_t* stencil = cairo_pop_group(cairo);
  cairo_mask(cairo, stencil);
  cairo_pattern_destroy(stencil);
  cairo_restore(cairo);
}

}  // namespace rendering
