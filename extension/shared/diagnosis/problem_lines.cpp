#include "shared/diagnosis/problem_lines.hpp"

namespace mirune {
namespace {

constexpr std::size_t mostLines = 20;
constexpr std::size_t longestLine = 400;  // bytes
constexpr std::size_t longestPath = 300;
constexpr std::size_t longestName = 80;

}  // namespace

void ProblemLines::add(std::string_view line) {
  if (first_.size() < mostLines) {
    first_.push_back(shortened(line, longestLine));
  } else {
    ++others_;
  }
}

void ProblemLines::appendTo(Problems& problems) const {
  problems.insert(problems.end(), first_.begin(), first_.end());
  if (others_ > 0) problems.push_back("and " + std::to_string(others_) + " more of this kind");
}

std::string shortened(std::string_view text, std::size_t limit) {
  if (text.size() <= limit) return std::string(text);
  const auto isInsideCharacter = [&](std::size_t at) { return (text[at] & 0xC0) == 0x80; };
  while (limit > 0 && isInsideCharacter(limit)) --limit;
  return std::string(text.substr(0, limit)) + "…";
}

std::string inQuotes(std::string_view text) {
  return "'" + shortened(text, longestName) + "'";
}

std::string placeOfID(std::string_view key, std::size_t index) {
  return shortened(key, longestName) + "[" + std::to_string(index) + "].id";
}

std::string lineOf(const foundation::DecodingError& error) {
  return foundation::DecodingError{.path = shortened(error.path, longestPath), .reason = error.reason}.message();
}

}  // namespace mirune
