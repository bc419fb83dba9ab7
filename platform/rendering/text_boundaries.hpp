#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace rendering {

/// Where what the reader takes for one character ends, in bytes; the last is the text's end.
std::vector<std::size_t> characterEnds(const std::string& text);

/// Where a line of the text may end, in bytes; the last is the text's end.
std::vector<std::size_t> lineEnds(const std::string& text, const std::string& language);

/// Those of the line ends that are not within a word that has Korean letters.
std::vector<std::size_t> withoutKoreanWords(const std::string& text, std::vector<std::size_t> lineEnds);

}  // namespace rendering
