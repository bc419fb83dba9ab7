#include "rendering/writing_direction.hpp"

#include <unicode/ubidi.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <memory>

namespace rendering {
namespace {

using swiftui::LayoutDirection;
using Paragraph = std::unique_ptr<UBiDi, decltype([](UBiDi* paragraph) { ubidi_close(paragraph); })>;

/// Before Hebrew nothing is written to the left: all such letters are encoded in more than one byte, from this one on.
constexpr unsigned char firstByteOfHebrew = 0xD6;

bool canRunToTheLeft(std::string_view line) {
  return std::ranges::any_of(line, [](char byte) { return static_cast<unsigned char>(byte) >= firstByteOfHebrew; });
}

/// How many bytes a part of a text has in UTF-8.
std::size_t length(const icu::UnicodeString& text, int start, int count) {
  std::string bytes;
  text.tempSubString(start, count).toUTF8String(bytes);
  return bytes.size();
}

}  // namespace

std::vector<DirectedPart> directedParts(std::string_view line, LayoutDirection otherwise) {
  const DirectedPart whole{.start = 0, .end = line.size(), .runsToTheLeft = false};
  const bool isToTheRight = otherwise == LayoutDirection::leftToRight;
  if (isToTheRight && !canRunToTheLeft(line)) return {whole};

  const auto text = icu::UnicodeString::fromUTF8({line.data(), static_cast<std::int32_t>(line.size())});
  UErrorCode status = U_ZERO_ERROR;
  const Paragraph paragraph(ubidi_open());
  ubidi_setPara(paragraph.get(), text.getBuffer(), text.length(), isToTheRight ? UBIDI_DEFAULT_LTR : UBIDI_DEFAULT_RTL,
                nullptr, &status);
  const int count = ubidi_countRuns(paragraph.get(), &status);
  if (U_FAILURE(status) != 0) return {whole};
  std::vector<DirectedPart> parts;
  for (int i = 0; i < count; ++i) {
    std::int32_t start = 0;
    std::int32_t units = 0;
    const bool runsToTheLeft = ubidi_getVisualRun(paragraph.get(), i, &start, &units) == UBIDI_RTL;
    const std::size_t first = length(text, 0, start);
    parts.push_back({.start = first, .end = first + length(text, start, units), .runsToTheLeft = runsToTheLeft});
  }
  return parts;
}

}  // namespace rendering
