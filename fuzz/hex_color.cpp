#include "styling/hex_color.hpp"

#include "fuzz/fuzzing.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto text = fuzzing::textOf(data, size);
  for (const auto& color : {mirune::platformColorOfHex(text), mirune::sRGBColorOfHex(text)}) {
    // A short text may hold more than its digits say, so a component may be larger than 1, but it is a number.
    for (const double component : {color.red, color.green, color.blue, color.alpha}) {
      fuzzing::require(component >= 0 && component < 1e17, "a component is a number");
    }
  }
  return 0;
}
