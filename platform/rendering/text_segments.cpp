#include "rendering/text_segments.hpp"

#include <algorithm>

#include "rendering/letters.hpp"
#include "rendering/text_boundaries.hpp"
#include "rendering/writing_direction.hpp"

namespace rendering {
namespace {

/// Behind general punctuation symbols begin, many of which are emoji elsewhere.
constexpr char32_t firstSymbol = 0x2070;

/// A character that the reader sees.
struct Character {
  std::size_t start = 0;
  std::size_t end = 0;
  const Typeface* typeface = nullptr;
  hb_script_t script = HB_SCRIPT_COMMON;
};

hb_script_t scriptOf(char32_t character) {
  return hb_unicode_script(hb_unicode_funcs_get_default(), character);
}

bool isScript(hb_script_t script) {
  return script != HB_SCRIPT_COMMON && script != HB_SCRIPT_INHERITED && script != HB_SCRIPT_UNKNOWN;
}

/// Whether the typeface has all letters and none can be an emoji: nothing else has to be looked at then.
bool isUsual(std::string_view line, const Typeface* typeface) {
  if (typeface == nullptr) return true;
  for (std::size_t position = 0; position < line.size();) {
    const char32_t character = nextCharacter(line, position);
    if (character >= firstSymbol || !typeface->has(character)) return false;
  }
  return true;
}

std::vector<Character> usualCharacters(const std::string& line, const Typeface* typeface) {
  std::vector<Character> characters;
  for (std::size_t position = 0; position < line.size();) {
    const std::size_t start = position;
    const char32_t character = nextCharacter(line, position);
    characters.push_back({.start = start, .end = position, .typeface = typeface, .script = scriptOf(character)});
  }
  return characters;
}

/// Looks for the typefaces of other letters and of emoji.
std::vector<Character> variedCharacters(const std::string& line, const GlyphStyle& style, FontLibrary& fonts) {
  std::vector<Character> characters;
  const Typeface* ofLetters = fonts.typeface(style.font);
  std::size_t start = 0;
  for (const std::size_t end : characterEnds(line)) {
    const std::string_view seen(line.data() + start, end - start);
    std::size_t position = 0;
    const char32_t first = nextCharacter(seen, position);
    // A blank is as wide as the letters before it want it.
    const Typeface* typeface =
        isBlank(first) && canWrite(*ofLetters, seen) ? ofLetters : fonts.typefaceFor(seen, style.font, style.language);
    if (!isEmoji(seen)) ofLetters = typeface;
    characters.push_back({.start = start, .end = end, .typeface = typeface, .script = scriptOf(first)});
    start = end;
  }
  return characters;
}

/// Appends a character; what belongs to every script goes with its neighbours.
void append(std::vector<TextSegment>& segments, const Character& character, bool runsToTheLeft) {
  hb_script_t script = character.script;
  if (!segments.empty()) {
    TextSegment& last = segments.back();
    const bool isOther = isScript(script) && isScript(last.script) && script != last.script;
    if (last.typeface == character.typeface && !isOther) {
      last.end = character.end;
      if (!isScript(last.script)) last.script = script;
      return;
    }
    if (!isScript(script)) script = last.script;
  }
  segments.push_back({.start = character.start,
                      .end = character.end,
                      .typeface = character.typeface,
                      .script = script,
                      .runsToTheLeft = runsToTheLeft});
}

}  // namespace

std::vector<TextSegment> segmentsOf(const std::string& line, const GlyphStyle& style, FontLibrary& fonts) {
  const Typeface* own = fonts.typeface(style.font);
  const auto characters = isUsual(line, own) ? usualCharacters(line, own) : variedCharacters(line, style, fonts);
  std::vector<TextSegment> segments;
  for (const DirectedPart& part : directedParts(line, style.direction)) {
    std::vector<TextSegment> inPart;
    for (auto character = std::ranges::lower_bound(characters, part.start, {}, &Character::start);
         character != characters.end() && character->start < part.end; ++character) {
      append(inPart, *character, part.runsToTheLeft);
    }
    if (part.runsToTheLeft) std::ranges::reverse(inPart);
    segments.insert(segments.end(), inPart.begin(), inPart.end());
  }
  return segments;
}

}  // namespace rendering
