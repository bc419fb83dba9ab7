#include "foundation/property_list.hpp"

#include "fuzz/fuzzing.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  auto list = foundation::PropertyList::parse(fuzzing::textOf(data, size));
  if (!list) return 0;
  list->value("app_theme_mode");
  list->set("color_calendar_offset", std::int64_t{42});
  const auto written = foundation::PropertyList::parse(list->bytes());
  // Of other members the library may write what it does not read itself.
  if (!written) return 0;
  const auto value = written->value("color_calendar_offset");
  fuzzing::require(std::holds_alternative<std::int64_t>(value) && std::get<std::int64_t>(value) == 42,
                   "a setting is read as it was written");
  return 0;
}
