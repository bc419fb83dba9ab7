#include "rendering/text_engine.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

#include "rendering/drawable_text.hpp"
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
    TextLine shown = {};
  };
  std::vector<Line> lines = {};
  double width = 0;         ///< of the widest line
  bool breaksWord = false;  ///< a word was too wide for a line of its own
};

/// The shaper puts the spacing between characters; the platform also behind the last one.
double lineWidth(PangoLayoutLine* line, double spacing) {
  PangoRectangle logical;
  pango_layout_line_get_extents(line, nullptr, &logical);
  return line->length > 0 ? std::max(0.0, pango_units_to_double(logical.width) + spacing) : 0;
}

double widthOf(const GlyphText& glyphs, const std::string& content, const GlyphStyle& style) {
  const auto paragraph = glyphs.paragraph(content, style);
  return lineWidth(pango_layout_get_line_readonly(paragraph.get(), 0), style.spacing);
}

void setWidth(PangoLayout* paragraph, std::optional<double> width, double spacing) {
  if (!width || std::isinf(*width)) return;
  // Pango counts in whole units: to the next one, so that a text fits into the width that it was measured with.
  const double units = std::ceil((*width - spacing) * PANGO_SCALE - tolerance);
  pango_layout_set_width(paragraph, static_cast<int>(std::clamp(units, 1.0, 1e9)));
  pango_layout_set_wrap(paragraph, PANGO_WRAP_WORD_CHAR);
}

void dropBlanksAtEnd(std::string& content) {
  while (!content.empty()) {
    const gchar* last = g_utf8_prev_char(content.c_str() + content.size());
    if (g_unichar_isspace(g_utf8_get_char(last)) == FALSE) return;
    content.resize(static_cast<std::size_t>(last - content.c_str()));
  }
}

/// A line that others follow: the blank at which it was broken takes no room, on whichever side it stands.
TextLine brokenLine(const GlyphText& glyphs, std::string content, double width, const GlyphStyle& style) {
  const std::size_t length = content.size();
  dropBlanksAtEnd(content);
  if (content.size() < length) width = widthOf(glyphs, content, style);
  return {.content = std::move(content), .width = width};
}

BrokenText breakText(const GlyphText& glyphs, PangoLayout* paragraph, const std::string& content,
                     const GlyphStyle& style) {
  BrokenText broken;
  int count = 0;
  const PangoLogAttr* attributes = pango_layout_get_log_attrs_readonly(paragraph, &count);
  glong character = 0;
  std::size_t counted = 0;
  for (GSList* item = pango_layout_get_lines_readonly(paragraph); item != nullptr; item = item->next) {
    auto* line = static_cast<PangoLayoutLine*>(item->data);
    const auto start = static_cast<std::size_t>(line->start_index);
    character += g_utf8_strlen(content.c_str() + counted, static_cast<gssize>(start - counted));
    counted = start;
    const bool followsBreak = start == 0 || content[start - 1] == '\n' || attributes[character].is_line_break != 0;
    broken.breaksWord = broken.breaksWord || !followsBreak;
    std::string text = content.substr(start, static_cast<std::size_t>(line->length));
    const double width = lineWidth(line, style.spacing);
    broken.lines.push_back({.start = start,
                            .shown = item->next != nullptr ? brokenLine(glyphs, std::move(text), width, style)
                                                           : TextLine{.content = std::move(text), .width = width}});
    broken.width = std::max(broken.width, broken.lines.back().shown.width);
  }
  return broken;
}

/// Breaks a text so that its lines are no wider than that, if they can be.
BrokenText breakText(const GlyphText& glyphs, const std::string& content, const GlyphStyle& style,
                     std::optional<double> width) {
  const auto paragraph = glyphs.paragraph(content, style);
  setWidth(paragraph.get(), width, style.spacing);
  BrokenText broken = breakText(glyphs, paragraph.get(), content, style);
  if (!width || std::isinf(*width)) return broken;
  // Where it breaks a line the shaper counts the spacing around the blank in another way than in the line by itself.
  const double mostMiscounted = 2 * std::abs(style.spacing);
  double narrowed = *width;
  for (int attempt = 0; attempt < 3; ++attempt) {
    const double excess = broken.width - *width;
    if (excess <= tolerance || excess > mostMiscounted) break;
    narrowed -= std::max(excess, std::abs(style.spacing));
    setWidth(paragraph.get(), narrowed, style.spacing);
    broken = breakText(glyphs, paragraph.get(), content, style);
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
/// other lines, so that an ellipsis is due in any case. Where not even that has room, nothing is shown.
TextLine truncatedLine(const GlyphText& glyphs, const std::string& content, bool continues, const GlyphStyle& style,
                       std::optional<double> width) {
  const auto paragraph = glyphs.paragraph(continues ? content + std::string(ellipsis) : content, style);
  pango_layout_set_ellipsize(paragraph.get(), PANGO_ELLIPSIZE_END);
  setWidth(paragraph.get(), width, style.spacing);
  PangoLayoutLine* line = pango_layout_get_line_readonly(paragraph.get(), 0);
  const auto cut = cutPosition(line);
  if (!cut && !continues) return {.content = content, .width = lineWidth(line, style.spacing)};

  int count = 0;
  const PangoLogAttr* attributes = pango_layout_get_log_attrs_readonly(paragraph.get(), &count);
  std::string kept = content.substr(0, cut.value_or(content.size()));
  // Beside the ellipsis a letter may take another form than it had before the next one.
  while (true) {
    dropBlanksAtEnd(kept);
    std::string shown = kept + std::string(ellipsis);
    const double shownWidth = widthOf(glyphs, shown, style);
    if (shownWidth <= width.value_or(swiftui::infinity) + tolerance) {
      return {.content = std::move(shown), .width = shownWidth};
    }
    if (kept.empty()) return {};
    glong last = g_utf8_strlen(kept.c_str(), -1);
    do --last;
    while (last > 0 && attributes[last].is_cursor_position == 0);
    kept.resize(static_cast<std::size_t>(g_utf8_offset_to_pointer(kept.c_str(), last) - kept.c_str()));
  }
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

TextLayout TextEngine::layoutText(const std::string& original, const TextStyle& style, ProposedSize proposal) const {
  // Nothing can be read in no width; the line keeps its height.
  if (proposal.width && *proposal.width <= 0) {
    return {.lines = {TextLine{}}, .shown = {}, .scale = 1, .metrics = fontMetrics(style.font)};
  }

  if (original.size() > longestText) return layoutText(shortened(original), style, proposal);

  const std::string content = drawableText(original);
  const double room = proposal.width.value_or(swiftui::infinity) + tolerance;

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
    result.broken = breakText(*glyphs_, content, glyphStyle(style, scale), proposal.width);
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
        truncatedLine(*glyphs_, rest.substr(0, end), end != std::string::npos, glyphs, proposal.width));
    layout.shown = content.substr(0, start);
    const std::string& last = layout.lines.back().content;
    if (last.empty() || last == ellipsis) dropBlanksAtEnd(layout.shown);
    layout.shown += last;
  }
  return layout;
}

void TextEngine::drawLine(cairo_t* cairo, const std::string& line, const TextStyle& style, double scale,
                          swiftui::Point origin) const {
  const GlyphStyle glyphs = glyphStyle(style, scale);
  const auto paragraph = glyphs_->paragraph(line, glyphs);
  PangoLayoutLine* glyphLine = pango_layout_get_line_readonly(paragraph.get(), 0);
  // The spacing behind the last character stands to the left of it where writing runs to the left.
  const bool runsToTheLeft = pango_layout_line_get_resolved_direction(glyphLine) == PANGO_DIRECTION_RTL;
  cairo_move_to(cairo, origin.x + (runsToTheLeft ? glyphs.spacing : 0), origin.y);
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
