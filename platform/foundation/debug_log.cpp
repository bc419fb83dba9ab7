#include "foundation/debug_log.hpp"

#include <cstdio>
#include <string>

namespace foundation {

DebugLog standardOutputLog() {
  return [](std::string_view line) {
    const std::string text = std::string(line) + "\n";
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
  };
}

}  // namespace foundation
