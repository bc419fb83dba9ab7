#pragma once

#include <span>
#include <string_view>

namespace mirune {

/// The sayings of the quote of the day, one a day in this order: 140 texts in UTF-8, each a saying, the separator
/// ";;;;" and its author's name. They live as long as the program.
///
/// A saying must fit the medium widget of a phone of 390 by 844 points at full size; about 150 characters do.
std::span<const std::string_view> thoughtTable();

}  // namespace mirune
