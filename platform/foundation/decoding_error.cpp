#include "foundation/decoding_error.hpp"

namespace foundation {

void moveIntoMember(DecodingError& error, std::string_view key) {
  const bool joined = error.path.empty() || error.path.front() == '[';
  error.path = std::string(key) + (joined ? "" : ".") + error.path;
}

void moveIntoElement(DecodingError& error, std::size_t index) {
  const bool joined = error.path.empty() || error.path.front() == '[';
  error.path = "[" + std::to_string(index) + (joined ? "]" : "].") + error.path;
}

}  // namespace foundation
