#include <map>

#include "foundation/json_decoder.hpp"
#include "fuzz/fuzzing.hpp"
#include "shared/daily_mood.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(fuzzing::textOf(data, size));
  const auto moods = foundation::decodeJSON<std::map<std::string, mirune::MiruneDailyMood>>(text);
  const auto again = foundation::decodeJSON<std::map<std::string, mirune::MiruneDailyMood>>(text);
  fuzzing::require(moods.has_value() == again.has_value(), "the same bytes have the same answer");
  return 0;
}
