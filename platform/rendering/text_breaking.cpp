#include "rendering/text_breaking.hpp"

#include <algorithm>
#include <cmath>

namespace rendering {
namespace {

using swiftui::TextLine;

/// The shaper puts the spacing between characters; the platform also behind the last one.
double lineWidth(PangoLayoutLine* line, std::string_view content, const GlyphStyle& style) {
  PangoRectangle logical;
  pango_layout_line_get_extents(line, nullptr, &logical);
  return content.empty() ? 0 : std::max(0.0, pango_units_to_double(logical.width) + style.spacingBehind(content));
}

double widthOf(const GlyphText& glyphs, const std::string& content, const GlyphStyle& style) {
  const auto paragraph = glyphs.paragraph(content, style);
  return lineWidth(pango_layout_get_line_readonly(paragraph.get(), 0), content, style);
}

void setWidth(PangoLayout* paragraph, std::optional<double> width, double spacingBehind) {
  if (!width || std::isinf(*width)) return;
  // Pango counts in whole units: to the next one, so that a text fits into the width that it was measured with.
  const double units = std::ceil((*width - spacingBehind) * PANGO_SCALE - widthTolerance);
  pango_layout_set_width(paragraph, static_cast<int>(std::clamp(units, 1.0, 1e9)));
  pango_layout_set_wrap(paragraph, PANGO_WRAP_WORD_CHAR);
}

/// A line that others follow: the blank at which it was broken takes no room, on whichever side it stands.
TextLine brokenLine(const GlyphText& glyphs, std::string content, double width, const GlyphStyle& style) {
  const std::size_t length = content.size();
  dropBlanksAtEnd(content);
  if (content.size() < length) width = widthOf(glyphs, content, style);
  return {.content = std::move(content), .width = width};
}

/// The lines as the shaper has broken them.
BrokenText linesOf(const GlyphText& glyphs, PangoLayout* paragraph, const std::string& content,
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
    const double width = lineWidth(line, text, style);
    broken.lines.push_back({.start = start,
                            .shown = item->next != nullptr ? brokenLine(glyphs, std::move(text), width, style)
                                                           : TextLine{.content = std::move(text), .width = width}});
    broken.width = std::max(broken.width, broken.lines.back().shown.width);
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

}  // namespace

void dropBlanksAtEnd(std::string& content) {
  while (!content.empty()) {
    const gchar* last = g_utf8_prev_char(content.c_str() + content.size());
    if (g_unichar_isspace(g_utf8_get_char(last)) == FALSE) return;
    content.resize(static_cast<std::size_t>(last - content.c_str()));
  }
}

BrokenText breakText(const GlyphText& glyphs, const std::string& content, const GlyphStyle& style,
                     std::optional<double> width) {
  auto paragraph = glyphs.paragraph(content, style);
  setWidth(paragraph.get(), width, style.spacingBehind(content));
  BrokenText broken = linesOf(glyphs, paragraph.get(), content, style);
  if (!width || std::isinf(*width)) return broken;
  if (broken.width > *width + std::abs(style.spacing)) {
    // A Korean word has no room on a line of its own.
    paragraph = glyphs.paragraph(content, style, false);
    setWidth(paragraph.get(), width, style.spacingBehind(content));
    broken = linesOf(glyphs, paragraph.get(), content, style);
    broken.breaksWord = true;
  }
  // Where it breaks a line the shaper counts the spacing around the blank in another way than in the line by itself.
  const double mostMiscounted = 2 * std::abs(style.spacing);
  double narrowed = *width;
  for (int attempt = 0; attempt < 3; ++attempt) {
    const double excess = broken.width - *width;
    if (excess <= widthTolerance || excess > mostMiscounted) break;
    narrowed -= std::max(excess, std::abs(style.spacing));
    setWidth(paragraph.get(), narrowed, style.spacingBehind(content));
    broken = linesOf(glyphs, paragraph.get(), content, style);
  }
  return broken;
}

TextLine truncatedLine(const GlyphText& glyphs, const std::string& content, bool continues, const GlyphStyle& style,
                       std::optional<double> width) {
  const auto paragraph = glyphs.paragraph(continues ? content + std::string(ellipsis) : content, style);
  pango_layout_set_ellipsize(paragraph.get(), PANGO_ELLIPSIZE_END);
  setWidth(paragraph.get(), width, style.spacingBehind(content));
  PangoLayoutLine* line = pango_layout_get_line_readonly(paragraph.get(), 0);
  const auto cut = cutPosition(line);
  if (!cut && !continues) return {.content = content, .width = lineWidth(line, content, style)};

  int count = 0;
  const PangoLogAttr* attributes = pango_layout_get_log_attrs_readonly(paragraph.get(), &count);
  std::string kept = content.substr(0, cut.value_or(content.size()));
  // Beside the ellipsis a letter may take another form than it had before the next one.
  while (true) {
    dropBlanksAtEnd(kept);
    std::string shown = kept + std::string(ellipsis);
    const double shownWidth = widthOf(glyphs, shown, style);
    if (shownWidth <= width.value_or(swiftui::infinity) + widthTolerance) {
      return {.content = std::move(shown), .width = shownWidth};
    }
    if (kept.empty()) return {};
    glong last = g_utf8_strlen(kept.c_str(), -1);
    do --last;
    while (last > 0 && attributes[last].is_cursor_position == 0);
    kept.resize(static_cast<std::size_t>(g_utf8_offset_to_pointer(kept.c_str(), last) - kept.c_str()));
  }
}

}  // namespace rendering
