#include "rendering/text_breaking.hpp"

#include <algorithm>
#include <cmath>

#include "rendering/letters.hpp"
#include "rendering/text_boundaries.hpp"

namespace rendering {
namespace {

using swiftui::TextLine;

/// How far a line reaches at each of its letters. What letters do to each other where a line is broken is left out.
class Reach {
 public:
  Reach(const ShapedText& text, const GlyphStyle& style) {
    for (const GlyphRun& run : text.runs) {
      for (const GlyphCluster& cluster : run.clusters) {
        ends_.push_back(
            {.end = cluster.end, .reach = cluster.advance * style.font.size + (cluster.isSpaced ? style.spacing : 0)});
      }
    }
    std::ranges::sort(ends_, {}, &End::end);
    double sum = 0;
    for (End& end : ends_) end.reach = sum += end.reach;
  }

  double between(std::size_t from, std::size_t to) const { return upTo(to) - upTo(from); }

 private:
  struct End {
    std::size_t end = 0;
    double reach = 0;
  };

  double upTo(std::size_t position) const {
    const auto above = std::ranges::upper_bound(ends_, position, {}, &End::end);
    return above == ends_.begin() ? 0 : (above - 1)->reach;
  }

  std::vector<End> ends_;
};

/// Breaks one paragraph that is wider than there is room.
class Paragraph {
 public:
  Paragraph(Shaper& shaper, const std::string& content, const GlyphStyle& style, double width)
      : shaper_(shaper),
        content_(content),
        style_(style),
        room_(width + widthTolerance),
        reach_(shaper.shaped(content, style), style),
        everyEnd_(lineEnds(content, style.language)),
        wordEnds_(withoutKoreanWords(content, everyEnd_)) {}

  struct Line {
    std::size_t end = 0;  ///< where the next one begins
    bool breaksWord = false;
    TextLine shown = {};
  };

  /// The line that begins there.
  Line line(std::size_t start) const {
    if (auto line = longest(start, wordEnds_)) return *line;
    if (auto line = longest(start, everyEnd_)) return broken(*line);
    const auto letters = characterEnds(content_);
    if (auto line = longest(start, letters)) return broken(*line);
    return broken(upTo(start, *std::ranges::upper_bound(letters, start)));
  }

 private:
  static Line broken(Line line) {
    line.breaksWord = true;
    return line;
  }

  Line upTo(std::size_t start, std::size_t end) const {
    std::string text = content_.substr(start, end - start);
    double width = shaper_.width(text, style_);
    if (end < content_.size() || width > room_) {
      text = withoutBlanksAtEnd(text);
      width = shaper_.width(text, style_);
    }
    return {.end = end, .shown = {.content = std::move(text), .width = width}};
  }

  /// The longest line that has room and ends at one of those; nothing where none has.
  std::optional<Line> longest(std::size_t start, const std::vector<std::size_t>& ends) const {
    auto first = std::ranges::upper_bound(ends, start);
    auto end = first;
    while (end != ends.end() && reach_.between(start, start + shownLength(start, *end)) <= room_) ++end;
    while (end != first) {
      --end;
      Line line = upTo(start, *end);
      if (line.shown.width <= room_) return line;
    }
    return std::nullopt;
  }

  std::size_t shownLength(std::size_t start, std::size_t end) const {
    return withoutBlanksAtEnd(std::string_view(content_).substr(start, end - start)).size();
  }

  Shaper& shaper_;
  const std::string& content_;
  const GlyphStyle& style_;
  double room_;
  Reach reach_;
  std::vector<std::size_t> everyEnd_;
  std::vector<std::size_t> wordEnds_;
};

bool isBounded(std::optional<double> width) {
  return width && !std::isinf(*width);
}

}  // namespace

BrokenText breakText(Shaper& shaper, const std::string& content, const GlyphStyle& style, std::optional<double> width) {
  BrokenText broken;
  const auto add = [&](std::size_t start, TextLine line) {
    broken.width = std::max(broken.width, line.width);
    broken.lines.push_back({.start = start, .shown = std::move(line)});
  };
  for (std::size_t start = 0; start <= content.size();) {
    const std::size_t end = std::min(content.find('\n', start), content.size());
    std::string text = content.substr(start, end - start);
    if (end < content.size()) text = withoutBlanksAtEnd(text);
    const double textWidth = shaper.width(text, style);
    if (!isBounded(width) || textWidth <= *width + widthTolerance) {
      add(start, {.content = std::move(text), .width = textWidth});
    } else {
      const Paragraph paragraph(shaper, text, style, *width);
      for (std::size_t at = 0; at < text.size();) {
        Paragraph::Line line = paragraph.line(at);
        broken.breaksWord = broken.breaksWord || line.breaksWord;
        add(start + at, std::move(line.shown));
        at = line.end;
      }
    }
    start = end + 1;
  }
  return broken;
}

TextLine truncatedLine(Shaper& shaper, const std::string& content, bool continues, const GlyphStyle& style,
                       std::optional<double> width) {
  const double room = width.value_or(swiftui::infinity) + widthTolerance;
  const double whole = shaper.width(content, style);
  if (!continues && whole <= room) return {.content = content, .width = whole};

  const std::vector<std::size_t> ends = characterEnds(content);
  const Reach reach(shaper.shaped(content, style), style);
  const auto cut =
      std::ranges::upper_bound(ends, room, {}, [&](std::size_t end) { return end == 0 ? 0 : reach.between(0, end); });
  // Beside the ellipsis a letter may take another form than it had before the next one.
  for (auto end = cut; end != ends.begin();) {
    --end;
    const std::string kept(withoutBlanksAtEnd(std::string_view(content).substr(0, *end)));
    std::string shown = kept + std::string(ellipsis);
    const double shownWidth = shaper.width(shown, style);
    if (shownWidth <= room) return {.content = std::move(shown), .width = shownWidth};
  }
  const double least = shaper.width(std::string(ellipsis), style);
  return least <= room ? TextLine{.content = std::string(ellipsis), .width = least} : TextLine{};
}

}  // namespace rendering
