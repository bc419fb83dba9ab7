#include "fuzz/fuzzing.hpp"
#include "shared/override_state.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto state = mirune::decodeOverrideState(fuzzing::textOf(data, size));
  if (!state) return 0;
  const mirune::OverrideLookup lookup(*state);
  for (const auto& [id, date] : *state) fuzzing::require(lookup.contains(id), "what was ticked is found");
  const auto written = mirune::decodeOverrideState(mirune::encodeOverrideState(*state));
  fuzzing::require(written.has_value(), "what is written can be read");
  fuzzing::require(written->size() == state->size(), "no item is lost");
  return 0;
}
