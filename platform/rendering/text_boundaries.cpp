#include "rendering/text_boundaries.hpp"

#include <unicode/ubrk.h>
#include <unicode/utext.h>

#include <memory>

#include "rendering/letters.hpp"

namespace rendering {
namespace {

using Iterator = std::unique_ptr<UBreakIterator, decltype([](UBreakIterator* iterator) { ubrk_close(iterator); })>;

std::vector<std::size_t> ends(const std::string& text, UBreakIteratorType type, const std::string& language) {
  if (text.empty()) return {0};
  UErrorCode status = U_ZERO_ERROR;
  UText bytes = UTEXT_INITIALIZER;
  utext_openUTF8(&bytes, text.data(), static_cast<std::int64_t>(text.size()), &status);
  const Iterator iterator(ubrk_open(type, language.c_str(), nullptr, 0, &status));
  if (iterator) ubrk_setUText(iterator.get(), &bytes, &status);
  std::vector<std::size_t> ends;
  if (U_SUCCESS(status) != 0) {
    for (int end = ubrk_next(iterator.get()); end != UBRK_DONE; end = ubrk_next(iterator.get())) {
      ends.push_back(static_cast<std::size_t>(end));
    }
  }
  utext_close(&bytes);
  if (ends.empty()) ends.push_back(text.size());
  return ends;
}

}  // namespace

std::vector<std::size_t> characterEnds(const std::string& text) {
  return ends(text, UBRK_CHARACTER, "");
}

std::vector<std::size_t> lineEnds(const std::string& text, const std::string& language) {
  return ends(text, UBRK_LINE, language);
}

std::vector<std::size_t> withoutKoreanWords(const std::string& text, std::vector<std::size_t> lineEnds) {
  std::size_t position = 0;
  while (position < text.size()) {
    const std::size_t start = position;
    bool hasKorean = false;
    std::size_t end = position;
    while (position < text.size()) {
      const char32_t character = nextCharacter(text, position);
      if (isBlank(character)) break;
      hasKorean = hasKorean || isKorean(character);
      end = position;
    }
    if (hasKorean) std::erase_if(lineEnds, [&](std::size_t at) { return start < at && at < end; });
  }
  return lineEnds;
}

}  // namespace rendering
