#include "rendering/shaper.hpp"

#include <hb.h>

#include <algorithm>
#include <array>
#include <memory>
#include <ranges>

#include "rendering/letters.hpp"
#include "rendering/text_segments.hpp"

namespace rendering {
namespace {

using Buffer = std::unique_ptr<hb_buffer_t, decltype([](hb_buffer_t* buffer) { hb_buffer_destroy(buffer); })>;

constexpr std::size_t mostKept = 256;
/// The width of the boxes that stand for letters where there is no font, em.
constexpr double boxAdvance = 0.6;
/// Letters that stand apart are not drawn as one.
constexpr std::array<hb_feature_t, 2> apart{
    {{.tag = HB_TAG('l', 'i', 'g', 'a'), .value = 0, .start = 0, .end = HB_FEATURE_GLOBAL_END},
     {.tag = HB_TAG('c', 'l', 'i', 'g'), .value = 0, .start = 0, .end = HB_FEATURE_GLOBAL_END}}};

char32_t characterAt(std::string_view line, std::size_t position) {
  return nextCharacter(line, position);
}

GlyphRun boxes(const std::string& line, const TextSegment& segment) {
  GlyphRun run{.typeface = nullptr, .runsToTheLeft = segment.runsToTheLeft};
  for (std::size_t position = segment.start; position < segment.end;) {
    const std::size_t start = position;
    nextCharacter(line, position);
    run.clusters.push_back({.start = start, .end = position, .advance = boxAdvance});
  }
  if (segment.runsToTheLeft) std::ranges::reverse(run.clusters);
  return run;
}

/// Groups glyphs, which stand from left to right, into clusters.
GlyphRun runOf(const TextSegment& segment, hb_buffer_t* buffer) {
  GlyphRun run{.typeface = segment.typeface, .runsToTheLeft = segment.runsToTheLeft};
  const double em = segment.typeface->unitsPerEm();
  unsigned count = 0;
  const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer, &count);
  const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer, &count);
  for (unsigned i = 0; i < count; ++i) {
    if (run.clusters.empty() || run.clusters.back().start != infos[i].cluster) {
      run.clusters.push_back({.start = infos[i].cluster, .firstGlyph = i});
    }
    GlyphCluster& cluster = run.clusters.back();
    run.glyphs.push_back({.index = infos[i].codepoint,
                          .x = cluster.advance + positions[i].x_offset / em,
                          .y = -positions[i].y_offset / em});
    cluster.advance += positions[i].x_advance / em;
    ++cluster.glyphCount;
  }
  return run;
}

/// A cluster ends where the next one in reading order begins.
void setEnds(GlyphRun& run, std::size_t end) {
  const auto endAt = [&end](GlyphCluster& cluster) {
    cluster.end = end;
    end = cluster.start;
  };
  if (run.runsToTheLeft) {
    std::ranges::for_each(run.clusters, endAt);
  } else {
    std::ranges::for_each(std::views::reverse(run.clusters), endAt);
  }
}

GlyphRun shapeSegment(const std::string& line, const TextSegment& segment, const GlyphStyle& style,
                      hb_buffer_t* buffer) {
  if (segment.typeface == nullptr) return boxes(line, segment);
  hb_buffer_clear_contents(buffer);
  hb_buffer_add_utf8(buffer, line.data(), static_cast<int>(line.size()), static_cast<unsigned>(segment.start),
                     static_cast<int>(segment.end - segment.start));
  hb_buffer_set_direction(buffer, segment.runsToTheLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
  hb_buffer_set_script(buffer, segment.script);
  hb_buffer_set_language(buffer, hb_language_from_string(style.language.c_str(), -1));
  const bool standApart = style.spacing != 0 && !joinsLetters(characterAt(line, segment.start));
  hb_shape(segment.typeface->shaper(), buffer, apart.data(), standApart ? apart.size() : 0);

  GlyphRun run = runOf(segment, buffer);
  setEnds(run, segment.end);
  for (GlyphCluster& cluster : run.clusters) {
    // Its last letter says what follows.
    for (std::size_t position = cluster.start; position < cluster.end;) {
      cluster.isSpaced = !joinsLetters(nextCharacter(line, position));
    }
  }
  return run;
}

}  // namespace

ShapedText Shaper::shape(const std::string& line, const GlyphStyle& style) {
  ShapedText text{.own = fonts_.typeface(style.font)};
  const Buffer buffer(hb_buffer_create());
  for (const TextSegment& segment : segmentsOf(line, style, fonts_)) {
    text.runs.push_back(shapeSegment(line, segment, style, buffer.get()));
  }
  return text;
}

const ShapedText& Shaper::shaped(const std::string& line, const GlyphStyle& style) {
  const swiftui::Font& font = style.font;
  Key key{.line = line,
          .font = font.name,
          .weight = font.weight,
          .design = font.design,
          .italic = font.italic,
          .isSpaced = style.spacing != 0,
          .direction = style.direction,
          .language = style.language};
  const auto known = kept_.find(key);
  if (known != kept_.end()) return known->second;
  if (kept_.size() >= mostKept) kept_.clear();
  return kept_.emplace(std::move(key), shape(line, style)).first->second;
}

double Shaper::width(const std::string& line, const GlyphStyle& style) {
  return shaped(line, style).width(style.font.size, style.spacing);
}

swiftui::FontMetrics Shaper::customFontMetrics(const swiftui::Font& font) {
  const Typeface* typeface = fonts_.typeface(font);
  if (typeface == nullptr) return {.ascent = font.size, .descent = 0, .capHeight = font.size};
  const auto [ascent, descent] = typeface->extents();
  return {.ascent = ascent * font.size, .descent = descent * font.size, .capHeight = typeface->capHeight() * font.size};
}

}  // namespace rendering
