#include "rendering/text_boundaries.hpp"

#include <unicode/ubrk.h>
#include <unicode/utext.h>

#include <map>
#include <memory>
#include <utility>

#include "rendering/letters.hpp"

namespace rendering {
namespace {

using Iterator = std::unique_ptr<UBreakIterator, decltype([](UBreakIterator* iterator) { ubrk_close(iterator); })>;

/// Kept, for to make one takes longer than to break a text; null where ICU lacks the rules.
UBreakIterator* iteratorOf(UBreakIteratorType type, const std::string& language) {
  thread_local std::map<std::pair<UBreakIteratorType, std::string>, Iterator> kept;
  Iterator& iterator = kept[{type, language}];
  UErrorCode status = U_ZERO_ERROR;
  if (!iterator) iterator.reset(ubrk_open(type, language.c_str(), nullptr, 0, &status));
  return U_SUCCESS(status) != 0 ? iterator.get() : nullptr;
}

std::vector<std::size_t> ends(const std::string& text, UBreakIteratorType type, const std::string& language) {
  if (text.empty()) return {0};
  UErrorCode status = U_ZERO_ERROR;
  UText bytes = UTEXT_INITIALIZER;
  utext_openUTF8(&bytes, text.data(), static_cast<std::int64_t>(text.size()), &status);
  UBreakIterator* const iterator = iteratorOf(type, language);
  if (iterator != nullptr) ubrk_setUText(iterator, &bytes, &status);
  std::vector<std::size_t> ends;
  if (iterator != nullptr && U_SUCCESS(status) != 0) {
    for (int end = ubrk_next(iterator); end != UBRK_DONE; end = ubrk_next(iterator)) {
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
