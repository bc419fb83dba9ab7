#include "foundation/iso8601.hpp"
#include "fuzz/fuzzing.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto text = fuzzing::textOf(data, size);
  // Offsets may lead out of the years that a text can say.
  const auto isSayable = [](foundation::Date date) {
    return date >= foundation::parseISO8601("0001-01-01T00:00:00Z") &&
           date < foundation::parseISO8601("9999-12-31T00:00:00Z");
  };
  if (const auto date = foundation::parseISO8601(text); date && isSayable(*date)) {
    fuzzing::require(foundation::parseISO8601(foundation::formatISO8601(*date)) == date, "a date survives its text");
  }
  if (const auto moment = foundation::parseMoment(text); moment && isSayable(*moment)) {
    fuzzing::require(foundation::parseMoment(foundation::formatMoment(*moment)) == moment,
                     "a moment survives its text");
  }
  return 0;
}
