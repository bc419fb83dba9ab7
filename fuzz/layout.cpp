#include <string>

#include "fuzz/fuzzing.hpp"
#include "support/grown_layout.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string problem(support::unsoundnessOfLayoutGrownFrom({data, size}));
  fuzzing::require(problem.empty(), problem.c_str());
  return 0;
}
