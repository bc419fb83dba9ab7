#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/decoding_error.hpp"

namespace mirune {

/// Lines that say each what is wrong, and where. They name places and ids, never titles.
using Problems = std::vector<std::string>;

/// Lines of one kind. Of very many the first few stand for all, and a last line counts the others.
class ProblemLines {
 public:
  void add(std::string_view line);
  void appendTo(Problems& problems) const;

 private:
  Problems first_;
  std::size_t others_ = 0;
};

/// The text cut to a length that a line can hold; a text of the planner's may have any.
std::string shortened(std::string_view text, std::size_t limit);

/// An id or a key of the planner's as lines name it: in quotes, shortened.
std::string inQuotes(std::string_view text);

/// The id of an item: "2026/11/21[3].id".
std::string placeOfID(std::string_view key, std::size_t index);

/// What a decoder says, with a path that a line can hold.
std::string lineOf(const foundation::DecodingError& error);

}  // namespace mirune
