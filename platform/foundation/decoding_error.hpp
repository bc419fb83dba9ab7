#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace foundation {

/// Why and where a text was refused.
struct DecodingError {
  std::string path = {};    ///< "2026/11/21[3].calid"; empty for the text as a whole
  std::string reason = {};  ///< "missing"

  /// "2026/11/21[3].calid: missing".
  std::string message() const { return path.empty() ? reason : path + ": " + reason; }
};

/// What an error in a member looks like from the object that holds it: the key comes before the path.
void moveIntoMember(DecodingError& error, std::string_view key);
/// The same for an element of an array.
void moveIntoElement(DecodingError& error, std::size_t index);

}  // namespace foundation
